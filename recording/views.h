// The views of the recording build: the functions of zel_l2fib/show.h that show something, under names of their own.
#pragma once

#include <cstdint>

extern "C" {
std::uint32_t recording_print_internal(std::uint32_t objtype, std::uint32_t node_id, std::uint32_t direction,
                                       std::uint32_t view_flags, std::uint8_t *show_data, std::uint64_t size);
std::uint32_t recording_platform_summary_hw_print_internal(std::uint32_t node_id, std::uint32_t hw_arg,
                                                           std::uint8_t *show_data, std::uint64_t size);
std::uint32_t recording_platform_msg_counter_hw_print_internal(std::uint32_t node_id, std::uint32_t hw_arg,
                                                               std::uint8_t *show_data, std::uint64_t size);
std::uint32_t recording_trident_print_summary(std::uint32_t hw_arg, std::uint8_t *show_data, std::uint64_t size);
}

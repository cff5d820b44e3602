// What l2fib-show can show, by the names that its commands and captures have for it.
#pragma once

#include "zel_l2fib/show.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace l2fib
{

/// A side of an object: ingress or egress.
struct Direction {
    const char *name;
    std::uint32_t number; ///< that the library has for it
};

/// What is shown of an object.
struct View {
    const char *name;
    std::uint32_t flags; ///< by which the library chooses it
};

/// What a function of the library is called with, beside the object and its show data.
struct ViewArguments {
    std::uint32_t node;
    std::uint32_t direction;
    std::uint32_t view_flags;
};

/// The functions that show something: the router's library, or the recording build of it.
struct Library {
    decltype(&zel_l2fib_print_internal) print_object;
    decltype(&zel_l2fib_platform_summary_hw_print_internal) print_state_summary;
    decltype(&zel_l2fib_platform_msg_counter_hw_print_internal) print_event_statistics;
    decltype(&zel_l2fib_trident_print_summary) print_hal_summary;
};
extern const Library router_library;
extern const Library recording_library;

struct Object {
    const char *name;
    const char *description;
    std::uint32_t objtype;    ///< none for a summary
    const View *default_view; ///< null for what has no views and no direction
    std::uint32_t (*show)(const Library &library, const Object &object, const ViewArguments &arguments,
                          std::span<std::uint8_t> show_data);
    std::size_t xid_offset = 0; ///< of its cross-connect ID in the show data; 0 when it has none

    [[nodiscard]] bool has_views() const { return default_view != nullptr; }

    /// Its cross-connect ID, from show data that is not shown yet.
    [[nodiscard]] std::optional<std::uint32_t> xid(std::span<const std::uint8_t> show_data) const;
};

std::span<const Object> objects();
std::span<const View> views();
std::span<const Direction> directions(); ///< the default first

/// The row of a name, null when there is none.
template <class Row>
const Row *row_named(std::span<const Row> table, std::string_view name)
{
    for (const Row &row : table) {
        if (row.name == name) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace l2fib

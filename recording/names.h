// The names of the recording build, which is in the same process as the router's library.
#pragma once

#define l2fib                                            l2fib_recording // the namespace
#define ipmc_bvi_stat                                    recording_ipmc_bvi_stat
#define l2fib_mac_entry_type                             recording_l2fib_mac_entry_type
#define print_ip                                         recording_print_ip
#define print_mac                                        recording_print_mac
#define print_words                                      recording_print_words
#define zel_l2fib_data_size                              recording_data_size
#define zel_l2fib_get_cardtype                           recording_get_cardtype
#define zel_l2fib_get_shg_str                            recording_get_shg_str
#define zel_l2fib_hal_brg_feature_data_size              recording_hal_brg_feature_data_size
#define zel_l2fib_hal_print                              recording_hal_print
#define zel_l2fib_platform_msg_counter_hw_print_internal recording_platform_msg_counter_hw_print_internal
#define zel_l2fib_platform_summary_hw_print_internal     recording_platform_summary_hw_print_internal
#define zel_l2fib_print_elapsed                          recording_print_elapsed
#define zel_l2fib_print_internal                         recording_print_internal
#define zel_l2fib_print_internal_detail                  recording_print_internal_detail
#define zel_l2fib_print_internal_inconsistent            recording_print_internal_inconsistent
#define zel_l2fib_print_internal_private                 recording_print_internal_private
#define zel_l2fib_print_tlv                              recording_print_tlv
#define zel_l2fib_rp_brg_feat_block_control_flags_en     recording_rp_brg_feat_block_control_flags_en
#define zel_l2fib_rp_obj_endian_xform_ctx                recording_rp_obj_endian_xform_ctx
#define zel_l2fib_trident_print_internal                 recording_trident_print_internal
#define zel_l2fib_trident_print_internal_detail          recording_trident_print_internal_detail
#define zel_l2fib_trident_print_internal_inconsistent    recording_trident_print_internal_inconsistent
#define zel_l2fib_trident_print_internal_private         recording_trident_print_internal_private
#define zel_l2fib_trident_print_summary                  recording_trident_print_summary

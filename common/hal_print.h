// Which cards are supported, and how the RP's views hand over to the hardware's.
#pragma once

#include "common/output.h"
#include "common/show_data.h"
#include "zel_l2fib/show.h"

#include <optional>

namespace l2fib
{

/// The arguments of every view of an object.
struct ViewRequest {
    std::uint32_t objtype;
    std::uint32_t node_id;
    std::uint32_t direction;
    std::uint32_t view_flags;
    std::uint8_t *show_data;
    std::uint64_t size;
};

/// Whether the card of a node is of the supported family; says so on the screen when it is not.
bool card_is_supported(Output &out, std::uint32_t node_id);

/// Why an RP view cannot begin: the status that goes with what it printed. None when it can.
std::optional<std::uint32_t> refusal(Output &out, const char *view, const ViewRequest &request);

/// The same for a platform summary, of which an empty one is shown as nothing.
std::optional<std::uint32_t> summary_refusal(Output &out, const char *view, const std::uint8_t *show_data,
                                             std::uint64_t size);

/// Empties zel_l2fib_hal_print and enters the views of the supported card family.
void fill_hal_print();

/// Prints the hardware's part of an object below the RP's: nothing when no view is entered for the supported cards.
std::uint32_t hand_over(Output &out, std::uint32_t level, const ViewRequest &request);

/// The print function of the supported card family, on the output of a call that is under way.
std::uint32_t zel_l2fib_trident_print_internal(Output &out, std::uint32_t level, const ViewRequest &request);

/// The same for the printer of inconsistency reports, which leaves `rest` at what follows the stream.
std::uint32_t zel_l2fib_print_tlv(Output &out, std::uint32_t level, ShowData &rest);

/// The slot of a platform summary.
using SummarySlot = uint32_t (*zel_l2fib_hal_print_row::*)(uint32_t hw_arg, uint8_t *show_data, uint64_t size);

/// Prints the hardware's part of a platform summary below the RP's, as hand_over does, after refilling the table.
std::uint32_t hand_over_summary(Output &out, std::uint32_t node_id, std::uint32_t hw_arg, ShowData hardware_part,
                                SummarySlot slot);

} // namespace l2fib

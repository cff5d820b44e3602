// Puts together what the RP and the NPs say of a thing, and who is at odds with whom.
#pragma once

#include "client/check/checked_view.h"
#include "client/check/findings.h"

namespace l2fib
{

/// What one place says.
struct Said {
    std::uint32_t section;             ///< of the view, which the place is in
    const recording::TreeValue *value; ///< null where no line shows it
    std::uint64_t number;              ///< by which it is compared
    std::string text;                  ///< empty for the text of the value
    std::string part;                  ///< "uidb": tells the places of a party from each other
    std::optional<ByteRange> bytes;
    std::string path; ///< in the JSON of the view; empty for that of the value
};

/// Who has a section: "RP", "NP1", "HAL", "line card".
std::string party_of(const CheckedView &view, std::uint32_t section);

/// The section of an NP and below it: "uidb"; empty for the NP itself.
std::string part_of(const CheckedView &view, std::uint32_t section);

/// As on the screen; a number that the screen has in hex, with its 0x.
std::string text_of(const recording::TreeValue &value);

/// A finding whose statements are what was said, the same ones together. None when all of them say the same.
std::optional<Finding> disagreement(const CheckedView &view, std::span<const Said> said);

/// "NP0, NP1 and NP2"; of many, how many more there are.
std::string names_in_a_row(const std::vector<std::string> &names);

} // namespace l2fib

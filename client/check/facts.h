// The facts that several parts of an object's show data state. All of them must say the same: these are the rules that
// `l2fib-show check` goes by.
//
// To add one, add a row to the table in facts.cpp, an example to docs/checks.md, and the fault to those of
// examples/planted_faults.cpp.
#pragma once

#include "client/check/findings.h"
#include "recording/tree.h"

#include <span>

namespace l2fib
{

/// Where a fact is stated.
struct FactPlace {
    static constexpr int all_bits = -1;

    /// Of the value in the JSON of the view. A field of the RP's record that no line shows goes by its name.
    const char *path = nullptr;

    int bit = all_bits;           ///< of the bytes as received; 0 is the first one's highest
    bool is_inverted = false;     ///< the bit says the opposite
    const char *beside = nullptr; ///< counts only where this value is shown in the same section
};

/// How the places of a fact go together.
enum class Relation : std::uint8_t {
    same,            ///< all of them say the same
    same_on_each_np, ///< those of an NP do
    first_at_most,   ///< the first is not above the second in the same section
    zero,            ///< it is 0
};

/// The services of an AC or PW that a fact is about.
enum class OfService : std::uint8_t { any, vpls, other_than_vpls };

constexpr std::size_t most_places = 4;

struct Fact {
    const char *object; ///< by the name of its command
    const char *name;
    OfService service;
    Relation relation;
    Level level;
    FactPlace places[most_places]; ///< those after the last one have no path
    const char *meaning;           ///< of a disagreement, for traffic
};

std::span<const Fact> facts();

/// "RP and NPs", "at most" and so on.
const char *text_of(Relation relation);
const char *text_of(Level level);

/// A field that differs from NP to NP without harm, by its record and name.
struct MayDiffer {
    const char *field; ///< "XidEntry.learn_count_pointer"
    const char *why;
    std::uint32_t flags = 0; ///< only these bits of the word, counted from the lowest; 0 for all of it
};
std::span<const MayDiffer> fields_that_may_differ();

/// What else differs between NPs means, by the section of the view.
const char *meaning_of_difference(std::string_view section_path);

} // namespace l2fib

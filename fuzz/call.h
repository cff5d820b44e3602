// What the targets' inputs begin with, and what a call of the library is given.
#pragma once

#include "common/record.h"
#include "fuzz/exact_copy.h"

namespace l2fib
{

/// How a target calls the library. In host order; what an input is too short for is 0.
struct Call {
    enum Choice : std::uint8_t { without_show_data = 1, context_as_received = 2 };

    StoredU32 objtype;
    StoredU32 direction;
    StoredU32 view_flags;
    StoredU32 level;
    U8 function; ///< which one, of a target that calls several
    U8 choices;

    // The router's answers.
    StoredU32 card_type;
    AsStored<std::uint64_t> monotonic_seconds;
    AsStored<std::uint64_t> nanoseconds;
    StoredU32 ifhandle_status;
    U8 ifhandle_is_virtual;

    // Of the target that looks at the amount of text; the others have no use for them.
    StoredU16 period; ///< how many bytes at the end of the show data are repeated
    U8 magnitude;     ///< of the size up to which they are

    using R = Call;
    using Fields = l2fib::Fields<&R::objtype, &R::direction, &R::view_flags, &R::level, &R::function, &R::choices,
                                 &R::card_type, &R::monotonic_seconds, &R::nanoseconds, &R::ifhandle_status,
                                 &R::ifhandle_is_virtual, &R::period, &R::magnitude>;

    [[nodiscard]] bool has(Choice choice) const { return (choices & choice) != 0; }
};

/// An input of a target, taken apart; the router answers as it says until the next one comes.
struct CallInput {
    explicit CallInput(std::span<const std::uint8_t> input);

    Call call{};
    ExactCopy show_data;
    std::uint8_t *data; ///< null for a call without show data; its size is passed all the same
    std::uint32_t level;
};

} // namespace l2fib

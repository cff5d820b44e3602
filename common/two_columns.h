// Values in two columns, the layout of the private views.
#pragma once

#include "common/flags.h"
#include "common/output.h"

namespace l2fib
{

/// Values go left and right in turn. The formats carry the padding of their labels, so that the code shows them as the
/// screen does.
class TwoColumns
{
public:
    /// `gap` is printed between the columns: tabs, mostly.
    TwoColumns(Output &out, const Literal &gap) : out_(out), gap_(gap) {}

    template <class... Args>
    [[gnu::always_inline]] void item(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        out_.text<Args...>(format, args...);
        out_.text("%s", is_right_ ? Literal{"\n"} : gap_);
        is_right_ = !is_right_;
    }

    /// A value that has the line to itself.
    template <class... Args>
    [[gnu::always_inline]] void line(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        out_.text<Args...>(format, args...);
        out_.text("\n");
    }

    /// All flags of a table, each as 0 or 1.
    template <std::size_t size, class Word>
    void flags(const FlagTable<size> &table, const Word &word)
    {
        const std::uint32_t set = set_flags(word);
        const Flags all(out_, word);
        all.unnamed(set & ~table.named());
        for (const Flag &flag : table.rows()) {
            const bool is_one = is_set(set, flag.number);
            item("%s: %d", flag.text, again(is_one ? 1 : 0));
            if (is_one) {
                all.add(flag.text);
            }
        }
    }

private:
    Output &out_;
    Literal gap_;
    bool is_right_ = false;
};

} // namespace l2fib

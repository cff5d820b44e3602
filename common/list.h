// The wrapped list, by which lines of values and flags are printed.
#pragma once

#include "common/flags.h"
#include "common/output.h"

namespace l2fib
{

/// Items on one line, joined by ", ". An item that would begin after column 70 goes to a new line, indented to the
/// continuation column. So does a first item, when the text before it is that long.
class List
{
public:
    /// Opens a line for a list of values, which continues at the line's indentation.
    List(Output &out, std::uint32_t level)
        : out_(out), indentation_(out.line(level)), column_(indentation_), continuation_(indentation_)
    {
    }

    /// Opens a line for a labelled list, which continues under its first item.
    List(Output &out, std::uint32_t level, const Literal &label) : List(out, level)
    {
        text("%s: ", label);
        continuation_ = column_;
    }

    /// Text that is no item: no comma comes before it. It counts for the column.
    template <class... Args>
    [[gnu::always_inline]] void text(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        column_ += out_.text<Args...>(format, args...);
    }

    template <class... Args>
    [[gnu::always_inline]] void item(const Format<std::type_identity_t<Args>...> &format, const Args &...args)
    {
        const bool wraps = column_ > wrap_column;
        if (wraps) {
            out_.continue_at(continuation_);
            column_ = continuation_;
        }
        column_ += out_.item<Args...>(has_items_ && !wraps, format, args...);
        has_items_ = true;
    }

    template <class... Args>
    [[gnu::always_inline]] void item_if(bool condition, const Format<std::type_identity_t<Args>...> &format,
                                        const Args &...args)
    {
        if (condition) {
            item<Args...>(format, args...);
        }
    }

    /// The texts of a flag table for a word; `considered` has the flags that may be shown.
    template <std::size_t size, class Word>
    void flags(const FlagTable<size> &table, const Word &word, std::uint32_t considered = all_flags)
    {
        const std::uint32_t set = set_flags(word);
        const std::uint32_t shown = table.shown(set) & considered;
        const Flags all(out_, word);
        all.unnamed(set & ~table.named());
        table.for_each(shown, [&](const Flag &flag) {
            const Literal &text = is_set(set, flag.number) ? flag.text : flag.text_when_clear;
            item("%s", text);
            all.add(text);
        });
    }

    /// The column at which the line begins.
    [[nodiscard]] std::int64_t indentation() const { return indentation_; }

    /// Sets the column at which the line continues when it wraps from here on.
    void continue_at(std::int64_t column) { continuation_ = column; }

    /// Prints "None" when the list has no items.
    void none_if_empty()
    {
        if (!has_items_) {
            text("None");
        }
    }

private:
    static constexpr int wrap_column = 70;

    Output &out_;
    std::int64_t indentation_; // 64 bits hold the column of any level
    std::int64_t column_;
    std::int64_t continuation_;
    bool has_items_ = false;
};

/// A line with the texts of a flag table for a word, "None" when there are none.
template <std::size_t size, class Word>
void print_flags(Output &out, std::uint32_t level, const Literal &label, const FlagTable<size> &table, const Word &word,
                 std::uint32_t considered = all_flags)
{
    List line{out, level, label};
    line.flags(table, word, considered);
    line.none_if_empty();
}

} // namespace l2fib

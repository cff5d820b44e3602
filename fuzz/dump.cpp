// Proves that any text can be read as a dump in every form, never makes more bytes than were asked for, and that bytes
// written in plain hex are read as the same bytes; and that it can be told from show data, which begins with a zero.
#include "client/hex_digits.h"
#include "client/hex_dump.h"
#include "client/wrong_input.h"
#include "fuzz/target.h"

namespace l2fib
{

static void check(std::string_view text, HexForm form, std::size_t longest)
{
    const HexBytes read = read_hex_dump(text, form, longest);
    require(read.bytes.size() <= longest, "no more bytes than asked for");
    require(read.error.empty() || read.bytes.empty(), "either bytes or why there are none");
    if (read.error.empty()) {
        const std::string digits = hex_of_bytes(read.bytes);
        require(read_hex_dump(digits, HexForm::plain, longest).bytes == read.bytes,
                "what is written is read as the same");
    }
}

static void check_form(std::string_view text)
{
    other_than_show_data(text);
    other_than_hex_dump(text);
    other_than_captures(text);
    require(other_than_show_data(std::string(1, '\0').append(text)).empty(),
            "show data is not taken for anything else");
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using l2fib::HexForm;
    if (size == 0) {
        return 0;
    }
    const std::size_t longest = std::size_t{8} * data[0];
    const std::string_view text(reinterpret_cast<const char *>(data) + 1, size - 1);
    for (const HexForm form : {HexForm::any, HexForm::plain, HexForm::xxd, HexForm::hexdump}) {
        l2fib::check(text, form, longest);
    }
    l2fib::check_form(text);
    return 0;
}

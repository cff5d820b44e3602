// Proves that the conversions keep to the records that their callers promise, and the formatters to the room and the
// lengths that they are given: one byte more is never touched.
#include "fuzz/target.h"
#include "fuzz/values_input.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <cstring>

namespace l2fib
{

/// The record's size is the one that the library gives.
static void convert(const ValuesInput &input)
{
    constexpr std::uint8_t no_nps = 0;
    const ExactCopy record = input.bytes(zel_l2fib_data_size(input.head.objtype, no_nps));
    zel_l2fib_rp_obj_endian_xform_ctx(input.head.objtype, record.data());
    if (input.head.objtype == L2FIB_OBJTYPE_BRIDGE) {
        zel_l2fib_rp_brg_feat_block_control_flags_en(record.data(), input.head.number);
    }
}

/// The hardware's part of a bridge begins after what the sizes add up to, so that more NPs never take less.
static void measure(const ValuesInput &input)
{
    const auto np_count = static_cast<std::uint8_t>(input.head.number.value());
    const auto block = static_cast<std::uint8_t>(input.head.number >> 8U);
    if (np_count != 0) {
        const auto fewer = static_cast<std::uint8_t>(np_count - 1);
        require(zel_l2fib_data_size(input.head.objtype, np_count) >= zel_l2fib_data_size(input.head.objtype, fewer),
                "an object of more NPs is no smaller");
        require(zel_l2fib_hal_brg_feature_data_size(block, np_count) >=
                    zel_l2fib_hal_brg_feature_data_size(block, fewer),
                "a feature block of more NPs is no smaller");
    }
}

/// A text has room for a terminator, and the result tells its length as snprintf does.
template <class Write>
static void format(std::size_t capacity, const Write &write)
{
    const ExactCopy text = ValuesInput::filled(capacity);
    auto *const chars = reinterpret_cast<char *>(text.data());
    const int length = write(chars);
    require(length >= 0, "a value has a text");
    if (capacity != 0) {
        const std::size_t written = std::min(static_cast<std::size_t>(length), capacity - 1);
        require(strnlen(chars, capacity) == written, "the text is what the result says, cut off where the room ends");
    }
}

static void format_all(const ValuesInput &input)
{
    const std::size_t capacity = input.head.capacity;
    format(capacity, [&](char *text) {
        return zel_l2fib_print_elapsed(input.head.nanoseconds, text, static_cast<std::uint32_t>(capacity));
    });
    const auto group = static_cast<int>(input.head.number.value());
    format(capacity, [&](char *text) { return zel_l2fib_get_shg_str(text, static_cast<int>(capacity), group); });
    char untouched = 'x';
    zel_l2fib_get_shg_str(&untouched, -1 - static_cast<int>(capacity), group);
    require(untouched == 'x', "there is no room in a negative one");
}

static void print_all(const ValuesInput &input)
{
    constexpr std::size_t mac_size = 6;
    constexpr std::size_t word_size = 4;
    require(print_mac(input.bytes(mac_size).data()) == 14, "a MAC address has 14 characters");
    const std::uint32_t address = input.head.number;
    require(print_ip(&address) >= 7, "an IP address has at least 7 characters");

    const int length = input.head.words_length;
    const std::size_t words = length <= 0 ? 0 : (static_cast<std::size_t>(length) + word_size - 1) / word_size;
    const int printed = print_words(input.bytes(words * word_size).data(), length);
    require(printed == static_cast<int>(4 + (words == 0 ? 0 : 9 * words - 1)), "each word has its eight digits");
}

} // namespace l2fib

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const l2fib::ValuesInput input({data, size});
    l2fib::convert(input);
    l2fib::measure(input);
    l2fib::format_all(input);
    l2fib::print_all(input);
    return 0;
}

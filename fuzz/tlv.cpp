// Proves that zel_l2fib_print_tlv keeps to its stream, comes to an end, and leaves the cursor inside the stream with
// what remains after it.
#include "fuzz/call.h"
#include "fuzz/shape.h"
#include "fuzz/target.h"
#include "zel_l2fib/show.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using l2fib::require;
    const l2fib::CallInput input({data, size});
    std::uint8_t *const begin = input.data;
    const std::uint64_t whole = input.show_data.size();
    std::uint8_t *cursor = begin;
    std::uint64_t remaining = whole;
    const std::uint32_t status = zel_l2fib_print_tlv(input.level, &cursor, &remaining);

    require(remaining <= whole, "no more remains than there was");
    if (begin == nullptr) {
        require(cursor == nullptr && remaining == whole, "without a stream nothing moves");
        require(status == (whole == 0 ? 0 : L2FIB_SHOW_ERR_ARGS), "bytes without an address are refused");
        return 0;
    }
    require(cursor == begin + (whole - remaining), "the cursor is where the rest begins");
    require(status == 0 || status == L2FIB_SHOW_ERR_DATA, "the statuses are those of the interface");
    require(status == 0 || remaining != 0, "the cursor of an error is at a record");
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    return l2fib::mutate(l2fib::shape_of_tlv, data, size, max_size, seed);
}

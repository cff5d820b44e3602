#include "examples/show_data_builder.h"

namespace l2fib
{

// Not inline, also when linking: where GCC 12 sees the sizes of several records at once, it warns of overflows that
// cannot happen.

[[gnu::noinline]] ShowDataBuilder &ShowDataBuilder::add_bytes(const void *bytes, std::size_t size)
{
    const auto *begin = static_cast<const std::uint8_t *>(bytes);
    bytes_.insert(bytes_.end(), begin, begin + size);
    return *this;
}

ShowDataBuilder &ShowDataBuilder::add_zeros(std::size_t size)
{
    bytes_.resize(bytes_.size() + size);
    return *this;
}

} // namespace l2fib

#include "tests/support/buffer_layout.h"

#include <algorithm>
#include <stdexcept>

namespace l2fib
{

BufferField BufferLayout::field(const std::string &name) const
{
    const std::string whole = name.substr(0, name.find('+'));
    const auto found =
        std::find_if(fields_.begin(), fields_.end(), [&](const BufferField &field) { return field.name == whole; });
    if (found == fields_.end()) {
        throw std::out_of_range("no field " + name);
    }
    if (whole == name) {
        return *found;
    }
    return {name, found->offset + std::stoul(name.substr(whole.size())), 1, false};
}

std::vector<std::uint8_t> BufferLayout::filled_with(const Values &values, std::uint8_t elsewhere) const
{
    std::vector<std::uint8_t> bytes(size_, elsewhere);
    set(bytes, values);
    return bytes;
}

std::vector<std::uint8_t> BufferLayout::numbers_with(const Values &values) const
{
    std::vector<std::uint8_t> bytes(size_);
    for (std::size_t i = 0; i < size_; ++i) {
        bytes[i] = static_cast<std::uint8_t>(i % 251 + 1);
    }
    set(bytes, values);
    return bytes;
}

void BufferLayout::set(std::vector<std::uint8_t> &bytes, const Values &values) const
{
    for (const auto &[name, value] : values) {
        const BufferField place = field(name);
        for (std::size_t i = 0; i < place.width; ++i) {
            const bool is_little_endian = place.is_stored && !host_is_big_endian;
            const std::size_t byte = is_little_endian ? i : place.width - 1 - i;
            bytes[place.offset + byte] = i < sizeof value ? static_cast<std::uint8_t>(value >> 8 * i) : std::uint8_t{0};
        }
    }
}

} // namespace l2fib

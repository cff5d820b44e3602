#include "fuzz/shape.h"

#include <algorithm>
#include <random>

// The fuzzer's own changes, at random. NOLINTNEXTLINE(readability-identifier-naming)
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t max_size);

namespace l2fib
{

using Random = std::minstd_rand;

template <class Elements>
static const auto &one_of(const Elements &elements, Random &random)
{
    return elements[random() % elements.size()];
}

/// The first byte of a field counts least.
static std::uint8_t &byte_of(std::uint8_t *data, const Shape::Field &field, std::size_t index)
{
    return data[field.offset + (field.is_wire ? field.width - 1 - index : index)];
}

static void change(std::uint8_t *data, const Shape::Field &field, Random &random)
{
    if (field.values.empty()) {
        const std::size_t bit = random() % (8 * field.width);
        data[field.offset + bit / 8] ^= static_cast<std::uint8_t>(1U << bit % 8);
        return;
    }
    const std::uint64_t value = one_of(field.values, random);
    for (std::size_t i = 0; i < field.width; ++i) {
        byte_of(data, field, i) = static_cast<std::uint8_t>(value >> 8 * i);
    }
}

/// To a size at which a record ends, or about there; most often the last.
static std::size_t resize(std::uint8_t *data, std::size_t size, std::size_t max_size, const Shape &shape,
                          Random &random)
{
    std::size_t wanted = random() % 2 == 0 ? shape.whole_size() : one_of(shape.ends(), random);
    if (random() % 4 == 0) {
        wanted += random() % 2 == 0 ? 1 : -std::min<std::size_t>(wanted, 1);
    }
    wanted = std::min(wanted, max_size);
    const bool zeros = random() % 2 == 0;
    for (; size < wanted; ++size) {
        data[size] = zeros ? 0 : static_cast<std::uint8_t>(random());
    }
    return wanted;
}

std::size_t mutate(ShapeOf shape_of, std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    Random random(seed);
    for (std::size_t changes = 1 + random() % 4; changes != 0; --changes) {
        const Shape shape = shape_of({data, size});
        switch (random() % 8) {
        case 0: size = resize(data, size, max_size, shape, random); break;
        case 1:
        case 2:
        case 3:
        case 4:
            if (!shape.fields().empty()) {
                change(data, one_of(shape.fields(), random), random);
                break;
            }
            [[fallthrough]];
        default: return LLVMFuzzerMutate(data, size, max_size);
        }
    }
    return size;
}

} // namespace l2fib

// The printed names of the object types.
#pragma once

#include "common/literal.h"
#include "zel_l2fib/show.h"

#include <cstddef>
#include <cstdint>

namespace l2fib
{

/// The name of an object type, "Invalid" for an unknown code.
Literal objtype_name(std::uint32_t objtype);

/// Rows for some object types, each of which has its `objtype`.
template <class Row, std::size_t size>
class ByObjtype
{
public:
    consteval ByObjtype(const Row (&rows)[size]) : rows_(rows)
    {
        for (std::size_t row = 0; row < size; ++row) {
            number_of_[rows[row].objtype] = static_cast<std::uint8_t>(row + 1);
        }
    }

    /// The row of an object type, or null.
    [[nodiscard]] constexpr const Row *find(std::uint32_t objtype) const
    {
        const unsigned number = objtype < L2FIB_OBJTYPE_MAX ? number_of_[objtype] : 0;
        return number == 0 ? nullptr : &rows_[number - 1];
    }

private:
    const Row (&rows_)[size];
    std::uint8_t number_of_[L2FIB_OBJTYPE_MAX] = {}; // from 1; 0 where there is no row
};

} // namespace l2fib

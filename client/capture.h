// A capture: an object's show data, with all that is needed to show it as on its router.
#pragma once

#include "client/objects.h"
#include "client/offline_platform.h"

#include <bit>
#include <cstdint>
#include <span>
#include <vector>

namespace l2fib
{

/// How the line card that an object is from stores its own numbers.
struct ByteOrder {
    const char *name;
    std::endian order;
};
std::span<const ByteOrder> byte_orders(); ///< the default first

struct Capture {
    const Object *object = nullptr;
    std::uint32_t node = 0;
    const Direction *direction = &directions().front();
    const View *view = nullptr; ///< null for the object's default
    const ByteOrder *byte_order = &byte_orders().front();
    Router router;
    std::vector<std::uint8_t> show_data;

    /// Null for what has no views.
    [[nodiscard]] const View *shown_view() const { return view != nullptr ? view : object->default_view; }

    /// Shows it, without any show data where it has no bytes. The show data is converted on the way, so this is done
    /// once. Returns the library's status.
    std::uint32_t show() { return show(show_data.empty() ? std::span<std::uint8_t>{} : show_data); }

    /// Shows other show data in place of its own, as the same object on the same router.
    std::uint32_t show(std::span<std::uint8_t> other_data, const Library &library = router_library) const;

private:
    [[nodiscard]] ViewArguments arguments() const;
    void store_as_here(std::span<std::uint8_t> other_data) const;
};

} // namespace l2fib

// What one process has to tell another that it was forked from, or that was forked from it.
#pragma once

#include <concepts>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace l2fib
{

struct AnyMembers {
    void operator()(auto &.../*members*/) const {}
};

/// What goes piece by piece names its members in one place, for both ways: `hand_members(value, function)` calls the
/// function with all of them.
template <class Value>
concept HasMembers = requires(Value &value)
{
    hand_members(value, AnyMembers{});
};

template <class Value, class Type>
concept MaybeConst = std::same_as<std::remove_const_t<Value>, Type>;

class Parcel
{
public:
    template <HasMembers Value>
    void put(const Value &value)
    {
        hand_members(value, [this](const auto &...members) { (this->put(members), ...); });
    }
    template <class Value>
    void put(const Value &value) requires std::is_trivially_copyable_v<Value>
    {
        bytes_.append(reinterpret_cast<const char *>(&value), sizeof value);
    }
    void put(const std::string &text)
    {
        put(text.size());
        bytes_ += text;
    }
    template <class Value>
    void put(const std::vector<Value> &values)
    {
        put(values.size());
        for (const Value &value : values) {
            put(value);
        }
    }

    [[nodiscard]] const std::string &bytes() const { return bytes_; }
    void clear() { bytes_.clear(); }

private:
    std::string bytes_;
};

/// Takes out what was put in, in the same order.
class OpenedParcel
{
public:
    explicit OpenedParcel(std::string_view bytes) : bytes_(bytes) {}

    template <HasMembers Value>
    void take(Value &value)
    {
        hand_members(value, [this](auto &...members) { (this->take(members), ...); });
    }
    template <class Value>
    void take(Value &value) requires std::is_trivially_copyable_v<Value>
    {
        std::memcpy(&value, bytes_.data(), sizeof value);
        bytes_.remove_prefix(sizeof value);
    }
    void take(std::string &text)
    {
        const auto size = taken<std::size_t>();
        text = bytes_.substr(0, size);
        bytes_.remove_prefix(size);
    }
    template <class Value>
    void take(std::vector<Value> &values)
    {
        values.resize(taken<std::size_t>());
        for (Value &value : values) {
            take(value);
        }
    }
    template <class Value>
    Value taken()
    {
        Value value{};
        take(value);
        return value;
    }

    [[nodiscard]] bool is_empty() const { return bytes_.empty(); }

private:
    std::string_view bytes_;
};

} // namespace l2fib

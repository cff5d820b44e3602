// What a view says beside its text: which lines are about one thing, and which field a value was made from.
//
// The router's library prints, and records nothing: all of this is empty there, and costs nothing. The client's
// recording build has a header of its own in the place of this one, recording/common/recording.h.
#pragma once

#include <cstddef>
#include <cstdint>

namespace l2fib
{

class Output;

/// A value that is printed in the place of the field that it was made from: a name, a time, a part of a word.
template <class Value>
using FromField = Value;

/// `key` is what to call the value where the field has another name, or several such values.
template <class Value, class Field>
constexpr FromField<Value> from_field(Value value, const Field & /*field*/, const char * /*key*/ = nullptr)
{
    return value;
}

/// The number of a field, or the bytes of one that is no number.
template <class Field>
constexpr decltype(auto) content_of(const Field &field)
{
    if constexpr (requires { field.value(); }) {
        return field.value();
    } else {
        return (field);
    }
}

/// The same for what a function makes of the field.
template <class Field, class Make>
constexpr auto made_from(const Field &field, const Make &make)
{
    return make(content_of(field));
}

/// What is printed from here to the end of the scope is about one thing.
struct Section {
    Section(Output & /*out*/, const char * /*key*/) {}
};

/// What is printed from here to the end of the scope is about one of several things that are alike.
struct Element {
    Element(Output & /*out*/, const char * /*key*/) {}
};

/// What is printed from here to the end of the scope are the flags of `words`, those that are set.
struct Flags {
    template <class... Words>
    explicit Flags(Output & /*out*/, const Words &.../*words*/)
    {
    }
    template <class Name>
    void add(const Name & /*name*/) const
    {
    }

    /// Those that are set and have no name, by number.
    void unnamed(std::uint32_t /*bits*/) const {}
};

/// A value, and what to call it: a number of the view's own, or a field that has another name here.
template <class Value>
constexpr const Value &called(const char * /*key*/, const Value &value)
{
    return value;
}

/// A value that the same thing has been said of before.
template <class Value>
constexpr const Value &again(const Value &value)
{
    return value;
}

/// Something that the text leaves to its reader, or says in a way of its own.
template <class Value>
void note(Output & /*out*/, const char * /*key*/, const Value & /*value*/)
{
}

/// The text from here to the end of the scope says why something is not shown.
struct Failure {
    explicit Failure(Output & /*out*/) {}
};

/// Bytes were copied out of the show data.
inline void copied(const void * /*to*/, const void * /*from*/, std::size_t /*size*/) {}

} // namespace l2fib

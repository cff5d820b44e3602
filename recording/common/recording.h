// In the place of common/recording.h, for the recording build: what a view says beside its text goes to the recorder.
#pragma once

#include "common/literal.h"
#include "common/text.h"
#include "recording/recorder.h"

#include <string_view>
#include <type_traits>

namespace l2fib
{

class Output;

template <class Field>
constexpr decltype(auto) content_of(const Field &field)
{
    if constexpr (requires { field.value(); }) {
        return field.value();
    } else {
        return (field);
    }
}

/// A number in 64 bits, with its sign.
template <class Integer>
constexpr std::uint64_t widened(Integer number)
{
    if constexpr (std::is_signed_v<Integer>) {
        return static_cast<std::uint64_t>(std::int64_t{number});
    } else {
        return number;
    }
}

/// A field as the source of a value.
template <class Field>
recording::Source source_of(const Field &field)
{
    recording::Source source{.field = &field, .width = sizeof field};
    if constexpr (requires { field.value(); }) {
        source.number = widened(field.value());
        source.has_number = true;
    } else if constexpr (requires { field.word(); }) {
        source.number = field.word();
        source.has_number = true;
        source.is_part = true;
    }
    return source;
}

template <class Made>
struct FromField {
    constexpr operator const Made &() const { return made; }

    Made made;
    recording::Source source;
};

template <class Made, class Field>
FromField<Made> from_field(Made value, const Field &field, const char *key = nullptr)
{
    FromField<Made> from{value, source_of(field)};
    from.source.key = key;
    from.source.is_made = true;
    if constexpr (std::is_same_v<Made, std::string_view>) {
        from.source.width = value.size() + 1; // with its terminating zero
    }
    return from;
}

template <class Field, class Make>
auto made_from(const Field &field, const Make &make)
{
    FromField<decltype(make(content_of(field)))> from{make(content_of(field)), {}};
    if constexpr (!std::is_integral_v<Field>) {
        from.source = source_of(field);
    }
    from.source.is_made = true;
    return from;
}

template <class Named>
auto called(const char *key, const Named &value)
{
    if constexpr (requires { value.bytes; }) {
        FromField<decltype(value.value())> from{value.value(), source_of(value)};
        from.source.key = key;
        return from;
    } else {
        return FromField<Named>{value, {.key = key}};
    }
}

/// A value that has been recorded of the same thing.
template <class Said>
struct Again {
    const Said &said;
};

template <class Said>
Again<Said> again(const Said &value)
{
    return {value};
}

class Section
{
public:
    Section(Output & /*out*/, const char *key) : recorder_(recording::current)
    {
        if (recorder_ != nullptr) {
            recorder_->open_section(key);
        }
    }
    ~Section()
    {
        if (recorder_ != nullptr) {
            recorder_->close();
        }
    }
    Section(const Section &) = delete;
    Section &operator=(const Section &) = delete;

private:
    recording::Recorder *recorder_;
};

class Element
{
public:
    Element(Output & /*out*/, const char *key) : recorder_(recording::current)
    {
        if (recorder_ != nullptr) {
            recorder_->open_element(key);
        }
    }
    ~Element()
    {
        if (recorder_ != nullptr) {
            recorder_->close();
        }
    }
    Element(const Element &) = delete;
    Element &operator=(const Element &) = delete;

private:
    recording::Recorder *recorder_;
};

class Flags
{
public:
    template <class... Words>
    explicit Flags(Output & /*out*/, const Words &...words) : recorder_(recording::current)
    {
        if (recorder_ != nullptr) {
            const recording::Source sources[] = {source_of(words)...};
            recorder_->open_flags(sources);
        }
    }
    ~Flags()
    {
        if (recorder_ != nullptr) {
            recorder_->close_flags();
        }
    }
    Flags(const Flags &) = delete;
    Flags &operator=(const Flags &) = delete;

    void add(const Literal &name) const
    {
        if (recorder_ != nullptr) {
            recorder_->flag({name.chars, name.size});
        }
    }

    void unnamed(std::uint32_t bits) const
    {
        if (recorder_ != nullptr) {
            recorder_->unnamed_flags(bits);
        }
    }

private:
    recording::Recorder *recorder_;
};

class Failure
{
public:
    explicit Failure(Output &out);
    ~Failure();
    Failure(const Failure &) = delete;
    Failure &operator=(const Failure &) = delete;

private:
    Output &out_;
};

template <class Noted>
void note(Output &out, const char *key, const Noted &value);

inline void copied(const void *to, const void *from, std::size_t size)
{
    if (recording::current != nullptr) {
        recording::current->copied(to, from, size);
    }
}

} // namespace l2fib

#include "client/capture_line.h"

#include "client/diagnostics.h"
#include "client/hex_digits.h"
#include "client/whole_number.h"

#include <array>
#include <cstdint>
#include <iterator>
#include <limits>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace l2fib
{

/// What is known of a capture while its members come in, in any order.
struct Draft {
    Draft() { capture.router.time_zone = "UTC0"; }

    Capture capture;
    std::optional<std::uint64_t> monotonic_seconds;
    std::optional<std::uint64_t> wall_seconds;
    bool has_show_data = false;
    std::size_t broken_at = 0; ///< the byte at which it is no JSON
    std::string error;
};

/// Notes why a member is not taken. Returns false.
static bool refuse(Draft &draft, const std::string &why)
{
    draft.error = why;
    return false;
}

static bool set_u32(Draft &draft, std::uint32_t &field, std::uint64_t number)
{
    if (number > std::numeric_limits<std::uint32_t>::max()) {
        return refuse(draft, "number above 4294967295");
    }
    field = static_cast<std::uint32_t>(number);
    return true;
}

template <class Row>
static bool set_row(Draft &draft, const Row *&field, std::span<const Row> table, const std::string &name)
{
    field = row_named(table, name);
    return field != nullptr || refuse(draft, "unknown " + spelled_out(name));
}

static bool set_show_data(Draft &draft, const std::string &text)
{
    auto bytes = bytes_of_hex(text);
    if (!bytes) {
        return refuse(draft, "not pairs of hex digits");
    }
    draft.capture.show_data = std::move(*bytes);
    draft.has_show_data = true;
    return true;
}

static bool set_time_zone(Draft &draft, const std::string &zone)
{
    if (!is_time_zone(zone)) {
        return refuse(draft, "no time zone: " + spelled_out(zone));
    }
    draft.capture.router.time_zone = zone;
    return true;
}

/// A member of a capture. It has a text or a number; a number may be written as a text, "0x1e1000".
struct Member {
    const char *name;
    bool (*take_number)(Draft &draft, std::uint64_t number);
    bool (*take_text)(Draft &draft, const std::string &text) = nullptr;
    bool is_array = false;
};

static constexpr Member members[] = {
    {"object", nullptr, [](Draft &d, const std::string &t) { return set_row(d, d.capture.object, objects(), t); }},
    {"node", [](Draft &d, std::uint64_t n) { return set_u32(d, d.capture.node, n); }},
    {"card", [](Draft &d, std::uint64_t n) { return set_u32(d, d.capture.router.card_type, n); }},
    {"direction", nullptr,
     [](Draft &d, const std::string &t) { return set_row(d, d.capture.direction, directions(), t); }},
    {"view", nullptr, [](Draft &d, const std::string &t) { return set_row(d, d.capture.view, views(), t); }},
    {"byte_order", nullptr,
     [](Draft &d, const std::string &t) { return set_row(d, d.capture.byte_order, byte_orders(), t); }},
    {"monotonic_seconds",
     [](Draft &d, std::uint64_t n) {
         d.monotonic_seconds = n;
         return true;
     }},
    {"wall_seconds",
     [](Draft &d, std::uint64_t n) {
         d.wall_seconds = n;
         return true;
     }},
    {"time_zone", nullptr, set_time_zone},
    {"virtual_interfaces",
     [](Draft &d, std::uint64_t n) { return set_u32(d, d.capture.router.virtual_interfaces.emplace_back(), n); },
     nullptr, true},
    {"show_data", nullptr, set_show_data},
};

/// What the parser makes of a number with a fraction or an exponent, or of one that 64 bits do not hold: nothing, as no
/// member is one. A double in its place would have the parser refuse the line for 1e400, even where it is passed over.
class PassedOverNumber
{
public:
    PassedOverNumber(double /*value*/) {}

    /// Where the parser reads it to.
    operator long double &() { return unread_; }
    /// By which it sees that the number is not too large.
    operator long double() const { return 0; }

private:
    long double unread_ = 0;
};

using Json =
    nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t, std::uint64_t, PassedOverNumber>;

/// Takes a capture member by member as the parser meets them, and nothing else: what a file may hold beside captures
/// takes no memory.
class MemberReader : public nlohmann::json_sax<Json>
{
public:
    Draft draft;

    bool null() override { return other_value(); }
    bool boolean(bool /*value*/) override { return other_value(); }
    bool number_integer(Json::number_integer_t /*negative*/) override { return other_value(); }
    bool number_float(Json::number_float_t /*value*/, const std::string & /*digits*/) override { return other_value(); }
    bool binary(Json::binary_t & /*value*/) override { return other_value(); }

    bool number_unsigned(Json::number_unsigned_t number) override
    {
        return is_member_value() && member_->take_number != nullptr ? blame(member_->take_number(draft, number))
                                                                    : other_value();
    }

    bool string(std::string &text) override
    {
        if (!is_member_value()) {
            return other_value();
        }
        if (member_->take_text != nullptr) {
            return blame(member_->take_text(draft, text));
        }
        const auto number = whole_number(text);
        return blame(number ? member_->take_number(draft, *number) : refuse(draft, "no number: " + spelled_out(text)));
    }

    bool key(std::string &name) override
    {
        if (depth_ != 1) {
            return true;
        }
        member_ = nullptr; // of a later version, or somebody's own
        for (std::size_t i = 0; i < std::size(members); ++i) {
            if (name == members[i].name) {
                member_ = &members[i];
                return blame(!std::exchange(is_given_[i], true) || refuse(draft, "given twice"));
            }
        }
        return true;
    }

    bool start_object(std::size_t /*size*/) override { return depth_++ == 0 || other_value(); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t /*size*/) override
    {
        const bool is_expected = depth_ == 1 && member_ != nullptr && member_->is_array;
        return (is_expected || other_value()) && ++depth_ != 0;
    }
    bool end_array() override { return close(); }

    bool parse_error(std::size_t position, const std::string & /*token*/, const Json::exception & /*error*/) override
    {
        draft.broken_at = position;
        return false;
    }

private:
    /// Whether a value is the member's: those of an array lie one level below it.
    [[nodiscard]] bool is_member_value() const { return member_ != nullptr && depth_ == (member_->is_array ? 2U : 1U); }

    /// A value that no member has. Below members that are not known, it may be anything.
    bool other_value()
    {
        if (depth_ == 0) {
            return refuse(draft, "no JSON object");
        }
        return member_ == nullptr || blame(refuse(draft, member_->is_array ? "an array of numbers is needed"
                                                         : member_->take_text != nullptr ? "a text is needed"
                                                                                         : "a whole number is needed"));
    }

    bool blame(bool is_taken)
    {
        if (!is_taken) {
            draft.error = std::string(member_->name) + ": " + draft.error;
        }
        return is_taken;
    }

    bool close()
    {
        --depth_;
        return true;
    }

    unsigned depth_ = 0;
    std::array<bool, std::size(members)> is_given_{};
    const Member *member_ = nullptr;
};

/// What a capture lacks, null for one that is whole.
static const char *missing(const Draft &draft)
{
    if (draft.capture.object == nullptr) {
        return "no object";
    }
    if (!draft.has_show_data) {
        return "no show_data";
    }
    return draft.monotonic_seconds.has_value() == draft.wall_seconds.has_value()
               ? nullptr
               : "one of monotonic_seconds and wall_seconds without the other";
}

/// What the parser made of a line.
static CaptureLine finish(MemberReader &reader, bool is_read)
{
    Draft &draft = reader.draft;
    if (!is_read) {
        return {{}, draft.error.empty() ? "broken JSON at byte " + std::to_string(draft.broken_at) : draft.error};
    }
    if (const char *what = missing(draft); what != nullptr) {
        return {{}, what};
    }
    if (draft.wall_seconds) {
        draft.capture.router.clocks = Clocks{*draft.monotonic_seconds, *draft.wall_seconds};
    }
    return {std::move(draft.capture), {}};
}

/// A line whose tabs between the values are blanks. When the parser meets an error it makes texts, for nobody, of what
/// it has read: with eight characters for each tab, they would take most of the memory that replay ever needs.
static std::string without_tabs(std::string_view line)
{
    std::string changed(line);
    bool is_in_string = false;
    bool is_escaped = false;
    for (char &c : changed) {
        if (is_in_string) {
            is_in_string = c != '"' || is_escaped;
            is_escaped = c == '\\' && !is_escaped;
        } else if (c == '\t' || c == '\r') {
            c = ' ';
        } else {
            is_in_string = c == '"';
        }
    }
    return changed;
}

CaptureLine parse_capture(std::string_view line)
{
    MemberReader reader;
    const bool is_read = Json::sax_parse(without_tabs(line), &reader);
    return finish(reader, is_read);
}

} // namespace l2fib

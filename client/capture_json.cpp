// Captures as lines of JSON.
#include "client/capture.h"
#include "client/diagnostics.h"
#include "client/hex_digits.h"
#include "client/whole_number.h"

#include <cstring>
#include <limits>
#include <nlohmann/json.hpp>

namespace l2fib
{

/// What is known of a capture while its members come in, in any order.
struct Draft {
    Draft() { capture.router.time_zone = "UTC0"; }

    Capture capture;
    std::optional<std::uint64_t> monotonic_seconds;
    std::optional<std::uint64_t> wall_seconds;
    bool has_show_data = false;
    std::optional<std::vector<std::uint8_t>> show_data_apart; ///< read ahead of the members
    std::string stand_in;                                     ///< what the parser is given in place of their digits
    std::size_t broken_at = 0;                                ///< the byte at which it is no JSON
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
    auto bytes = draft.show_data_apart && text == draft.stand_in ? std::exchange(draft.show_data_apart, std::nullopt)
                                                                 : bytes_of_hex(text);
    if (!bytes) {
        return refuse(draft, "not pairs of hex digits");
    }
    draft.capture.show_data = std::move(*bytes);
    draft.has_show_data = true;
    return true;
}

static bool set_time_zone(Draft &draft, const std::string &zone)
{
    draft.capture.router.time_zone = zone;
    return is_time_zone(zone) || refuse(draft, "no time zone: " + spelled_out(zone));
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

using Json = nlohmann::ordered_json;

/// Takes a capture member by member as the parser meets them, and nothing else: what a file may hold beside captures
/// takes no memory.
class CaptureReader : public nlohmann::json_sax<Json>
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
        if (depth_ == 1) {
            member_ = nullptr; // of a later version, or somebody's own
            for (const Member &member : members) {
                if (name == member.name) {
                    member_ = &member;
                }
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

/// Where the digits of the show data begin on a line, if they are found.
static std::optional<std::size_t> find_digits(std::string_view line)
{
    constexpr std::string_view key = "\"show_data\":";
    const void *found = memmem(line.data(), line.size(), key.data(), key.size()); // quicker than find
    if (found == nullptr) {
        return std::nullopt;
    }
    const auto behind_key = static_cast<std::size_t>(static_cast<const char *>(found) - line.data()) + key.size();
    const std::size_t quote = line.find_first_not_of(' ', behind_key);
    return quote != std::string_view::npos && line[quote] == '"' ? std::optional(quote + 1) : std::nullopt;
}

/// What the parser made of a line.
static CaptureLine finish(CaptureReader &reader, bool is_read)
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

/// A line, taken apart at the digits of its show data.
struct CaptureParser::Parts {
    std::string_view front;
    std::string_view digits;
    std::string_view back;
};

bool CaptureParser::read_as_known(const Parts &parts)
{
    frame_ = parts.front;
    frame_ += '\n'; // which no line has
    frame_ += parts.back;
    const auto found = known_.find(frame_);
    if (found == known_.end()) {
        return false;
    }
    result_.error.clear();
    result_.capture = found->second;
    return append_hex(result_.capture.show_data, parts.digits);
}

/// Nearly all of a line are its digits, which take no parser: it is given the line without them.
CaptureLine CaptureParser::read_anew(std::string_view line, const Parts &parts)
{
    CaptureReader reader;
    Draft &draft = reader.draft;
    draft.show_data_apart = bytes_of_hex(parts.digits);
    if (!draft.show_data_apart) {
        return finish(reader, Json::sax_parse(line, &reader));
    }
    // Longer than any other text that the line can hold: the digits that were found may be of another member.
    draft.stand_in.assign(parts.front.size() + parts.back.size(), '*');
    std::string rest(parts.front);
    rest += draft.stand_in;
    rest += parts.back;
    const bool is_read = Json::sax_parse(rest, &reader);
    if (draft.broken_at > parts.front.size()) {
        draft.broken_at += parts.digits.size();
        draft.broken_at -= draft.stand_in.size();
    }
    const bool took_digits = !draft.show_data_apart;
    CaptureLine parsed = finish(reader, is_read);
    if (parsed.error.empty() && took_digits) {
        constexpr std::size_t most_known = 256;
        if (known_.size() == most_known) {
            known_.clear();
        }
        Capture &known = known_[frame_];
        known = parsed.capture;
        known.show_data = {};
    }
    return parsed;
}

CaptureLine &CaptureParser::parse(std::string_view line)
{
    const std::optional<std::size_t> begin = find_digits(line);
    if (!begin) {
        CaptureReader reader;
        const bool is_read = Json::sax_parse(line, &reader);
        return result_ = finish(reader, is_read);
    }
    const std::string_view front = line.substr(0, *begin);
    const std::string_view behind = line.substr(*begin);
    // Lines end alike, mostly. Where the digits end before, a '"' is among what is taken for them, and refused.
    if (behind.ends_with(back_) && read_as_known({front, behind.substr(0, behind.size() - back_.size()), back_})) {
        return result_;
    }
    const std::size_t end = std::min(behind.find('"'), behind.size());
    back_ = behind.substr(end);
    const Parts parts{front, behind.substr(0, end), back_};
    if (!read_as_known(parts)) {
        result_ = read_anew(line, parts);
    }
    return result_;
}

CaptureLine parse_capture(std::string_view line)
{
    return std::move(CaptureParser{}.parse(line));
}

std::string format_capture(const Capture &capture)
{
    const auto hex = [](std::uint32_t number) {
        std::array<char, sizeof "0xffffffff"> text{};
        std::snprintf(text.data(), text.size(), "0x%x", number);
        return std::string(text.data());
    };
    const Router &router = capture.router;
    Json line;
    line["object"] = capture.object->name;
    line["node"] = capture.node;
    line["card"] = hex(router.card_type);
    if (capture.object->has_views()) {
        line["direction"] = capture.direction->name;
        line["view"] = capture.shown_view()->name;
    }
    if (router.clocks) {
        line["monotonic_seconds"] = router.clocks->monotonic_seconds;
        line["wall_seconds"] = router.clocks->wall_seconds;
    }
    if (router.time_zone) {
        line["time_zone"] = *router.time_zone;
    }
    if (!router.virtual_interfaces.empty()) {
        for (const std::uint32_t handle : router.virtual_interfaces) {
            line["virtual_interfaces"].push_back(hex(handle));
        }
    }
    line["show_data"] = hex_of_bytes(capture.show_data);
    return line.dump();
}

} // namespace l2fib

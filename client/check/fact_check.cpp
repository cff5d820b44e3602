#include "client/check/fact_check.h"

#include "rp/names.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <map>

namespace l2fib
{

using recording::pattern_of;
using recording::TreeValue;

static std::span<const FactPlace> places_of(const Fact &fact)
{
    std::size_t count = 0;
    while (count < most_places && fact.places[count].path != nullptr) {
        ++count;
    }
    return std::span(fact.places).first(count);
}

/// Numbers of different fields are compared: signed or not, they have 32 bits, and few have 64.
static std::uint64_t comparable(std::uint64_t number, bool is_wide)
{
    return is_wide ? number : static_cast<std::uint32_t>(number);
}

static std::uint64_t comparable(const TreeValue &value)
{
    return comparable(value.number, value.is_wide);
}

bool FactCheck::applies(const Fact &fact) const
{
    if (fact.service == OfService::any) {
        return true;
    }
    constexpr auto service_pattern = pattern_of("rp.service");
    const TreeValue *service = view_->first(service_pattern);
    return service != nullptr && (service->number == service_vpls) == (fact.service == OfService::vpls);
}

void FactCheck::collect_shown(const FactPlace &place, const TreeValue &value)
{
    if (place.beside != nullptr && view_->in_section(value.section, place.beside) == nullptr) {
        return;
    }
    const auto bytes = value.place ? std::optional(ByteRange{value.place->offset, value.width}) : std::nullopt;
    if (place.bit == FactPlace::all_bits) {
        if (value.has_number) {
            said_.push_back({value.section, &value, comparable(value), "", "", bytes, ""});
        }
        return;
    }
    const auto bit = static_cast<std::size_t>(place.bit);
    if (bytes && bit < 8 * bytes->width) {
        const bool is_set = (view_->received()[bytes->offset + bit / 8] >> (7 - bit % 8) & 1U) != 0;
        const bool is_on = is_set != place.is_inverted;
        said_.push_back({value.section, &value, is_on ? 1U : 0U, is_on ? "on" : "off", "", bytes, ""});
    }
}

/// What no line shows is taken from the record whose other fields are shown in the section.
void FactCheck::collect_hidden(const FactPlace &place)
{
    const std::string_view path = place.path;
    const std::size_t dot = path.find('.');
    const auto section = pattern_of(path.substr(0, dot));
    const auto held = view_->field(section, path.substr(dot + 1));
    if (!held) {
        return;
    }
    const auto sections = view_->tree().sections();
    const auto found = std::find_if(sections.begin(), sections.end(),
                                    [&](const recording::TreeSection &at) { return at.pattern == section; });
    const auto index = static_cast<std::uint32_t>(found - sections.begin());
    std::uint64_t number = held->number;
    std::string_view text;
    if (place.bit != FactPlace::all_bits) {
        const auto bit = static_cast<std::size_t>(place.bit);
        number = (view_->received()[held->offset + bit / 8] >> (7 - bit % 8) & 1U) != 0 ? 1 : 0;
        text = number != 0 ? "on" : "off";
    }
    said_.push_back({index, nullptr, number, std::string(text), "", ByteRange{held->offset, held->width}, place.path});
}

/// An NP that shows no such line, as some do when a number is 0, holds the field all the same.
void FactCheck::collect_nps_that_hide(const TreeValue &shown)
{
    const auto row = view_->row_of(shown);
    if (!row || &view_->first_of_row(*row) != &shown) {
        return;
    }
    const bool is_plain = shown.place && shown.place->field != nullptr &&
                          comparable(view_->number_at(shown.place->offset, shown.width, shown.place->field->kind),
                                     shown.is_wide) == comparable(shown);
    for (std::size_t np = 0; is_plain && np < view_->nps(); ++np) {
        const auto offset = view_->offset_of(*row, np);
        if (view_->cell(*row, np) == nullptr && offset) {
            const std::uint64_t number = view_->number_at(*offset, shown.width, shown.place->field->kind);
            said_.push_back({view_->np_section(np), nullptr, number, "", "", ByteRange{*offset, shown.width},
                             view_->path_in_np(shown, np)});
        }
    }
}

void FactCheck::collect(const FactPlace &place)
{
    const std::size_t before = said_.size();
    view_->for_each(pattern_of(place.path), [&](const TreeValue &value) {
        collect_shown(place, value);
        if (place.bit == FactPlace::all_bits && place.beside == nullptr) {
            collect_nps_that_hide(value);
        }
    });
    if (said_.size() == before && std::strncmp(place.path, "rp.", 3) == 0) {
        collect_hidden(place);
    }
}

void FactCheck::add(const Fact &fact, Finding finding)
{
    finding.what = fact.name;
    finding.level = fact.level;
    finding.meaning = fact.meaning;
    const bool is_of_bits = fact.places[0].bit != FactPlace::all_bits;
    coverage_->add(std::move(finding), is_of_bits);
}

/// A number in hex as another place shows it; in decimal when that shows none.
static std::string number_like(std::uint64_t number, const std::string &hex)
{
    if (hex.empty()) {
        return std::to_string(number);
    }
    std::array<char, 24> digits{};
    std::snprintf(digits.data(), digits.size(), "0x%0*llx", static_cast<int>(hex.size() - 2),
                  static_cast<unsigned long long>(number));
    return digits.data();
}

/// Reports what is said when it is not all the same.
void FactCheck::say(const Fact &fact, std::span<const Said> said)
{
    const bool agrees =
        std::all_of(said.begin(), said.end(), [&](const Said &one) { return one.number == said.front().number; });
    if (agrees) {
        return;
    }
    std::vector<Said> told(said.begin(), said.end());
    std::string hex; // as another place shows the number
    for (Said &one : told) {
        one.part = part_of(*view_, one.section);
        one.part = one.part.empty() && one.value != nullptr ? std::string(one.value->key) : one.part;
        if (fact.places[0].bit != FactPlace::all_bits && one.text.empty()) {
            one.text = one.number != 0 ? "on" : "off"; // a value that goes with the flags of others
        }
        const std::string text = one.value == nullptr ? "" : text_of(*one.value);
        hex = text.starts_with("0x") ? text : hex;
    }
    for (Said &one : told) {
        if (one.value == nullptr && one.text.empty()) {
            one.text = number_like(one.number, hex);
        }
    }
    if (auto finding = disagreement(*view_, told)) {
        add(fact, std::move(*finding));
    }
}

void FactCheck::check_each_np(const Fact &fact)
{
    std::map<std::uint64_t, std::vector<Said>> by_np;
    for (const Said &said : said_) {
        if (const auto np = view_->tree().sections()[said.section].np) {
            by_np[*np].push_back(said);
        }
    }
    for (const auto &[np, said] : by_np) {
        say(fact, said);
    }
}

static std::string_view last_of(std::string_view path)
{
    return path.substr(path.rfind('.') + 1);
}

/// "XID": the kind of thing that a section of a table is about.
static std::string kind_of(const CheckedView &view, std::uint32_t section)
{
    for (std::uint32_t at = section; at != 0; at = view.tree().sections()[at].parent) {
        if (const TreeValue *type = view.in_section(at, "type")) {
            return std::string(type->text);
        }
    }
    return {};
}

static Statement statement_of(const CheckedView &view, const TreeValue &value, const std::string &text)
{
    const std::string kind = kind_of(view, value.section);
    const auto bytes = value.place ? std::optional(ByteRange{value.place->offset, value.width}) : std::nullopt;
    return {{party_of(view, value.section) + (kind.empty() ? "" : " " + kind)},
            text,
            std::nullopt,
            true,
            view.tree().path_of(value),
            bytes};
}

/// A table can have hundreds of lines that are wrong in the same way: the first ones tell.
static void add_statement(Finding &finding, Statement statement)
{
    constexpr std::size_t most = 12;
    if (finding.statements.size() < most) {
        finding.statements.push_back(std::move(statement));
    } else if (finding.statements.size() == most) {
        finding.statements.push_back({{"others"}, "too", std::nullopt, true, "", std::nullopt});
    }
}

void FactCheck::check_at_most(const Fact &fact)
{
    Finding finding{};
    view_->for_each(pattern_of(fact.places[0].path), [&](const TreeValue &value) {
        const TreeValue *limit = view_->in_section(value.section, last_of(fact.places[1].path));
        if (limit != nullptr && limit->number < value.number) {
            add_statement(finding, statement_of(*view_, value, text_of(value) + " of at most " + text_of(*limit)));
        }
    });
    if (!finding.statements.empty()) {
        finding.who = "too many";
        add(fact, std::move(finding));
    }
}

void FactCheck::check_zero(const Fact &fact)
{
    Finding finding{};
    view_->for_each(pattern_of(fact.places[0].path), [&](const TreeValue &value) {
        if (value.number != 0) {
            add_statement(finding, statement_of(*view_, value, text_of(value)));
        }
    });
    if (!finding.statements.empty()) {
        finding.who = "not 0";
        add(fact, std::move(finding));
    }
}

void FactCheck::check(const Fact &fact)
{
    if (!applies(fact)) {
        return;
    }
    if (fact.relation == Relation::first_at_most) {
        return check_at_most(fact);
    }
    if (fact.relation == Relation::zero) {
        return check_zero(fact);
    }
    said_.clear();
    for (const FactPlace &place : places_of(fact)) {
        collect(place);
    }
    if (said_.size() < 2) {
        return;
    }
    for (const Said &said : said_) { // the comparison of NPs need not tell it again
        const auto row = said.value == nullptr ? std::nullopt : view_->row_of(*said.value);
        if (row && said.text.empty()) {
            coverage_->cover_row(*row);
        }
    }
    for (const FactPlace &place : places_of(fact)) {
        const TreeValue *word = place.bit == FactPlace::all_bits ? nullptr : view_->first(pattern_of(place.path));
        const auto row = word == nullptr ? std::nullopt : view_->row_of(*word);
        if (row) {
            coverage_->cover_bit(*row, place.bit);
        }
    }
    fact.relation == Relation::same ? say(fact, said_) : check_each_np(fact);
}

} // namespace l2fib

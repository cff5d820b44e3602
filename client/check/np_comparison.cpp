#include "client/check/np_comparison.h"

#include "client/hex_digits.h"

#include <algorithm>
#include <cstring>

namespace l2fib
{

using recording::TreeValue;

static std::string field_name(const TreeValue &value)
{
    return std::string(value.place->record->name) + '.' + std::string(value.place->field->name);
}

/// What the rest of an entry means depends on it: where it differs, the rest rightly does.
static bool decides(const TreeValue &value)
{
    return value.key == "type" && field_name(value) == "XidEntry.type";
}

static const MayDiffer *may_differ(const TreeValue &value)
{
    const auto fields = fields_that_may_differ();
    const std::string name = field_name(value);
    const auto found =
        std::find_if(fields.begin(), fields.end(), [&](const MayDiffer &field) { return name == field.field; });
    return found == fields.end() ? nullptr : &*found;
}

/// What the screen calls a value; its key where the screen has no word for it.
static std::string name_of(const TreeValue &value)
{
    std::string name(value.key);
    std::replace(name.begin(), name.end(), '_', ' ');
    return name;
}

bool NpComparison::differs(std::size_t row) const
{
    const auto received = view_->received();
    const std::size_t width = view_->first_of_row(row).width;
    std::optional<std::size_t> first;
    for (std::size_t np = 0; np < view_->nps(); ++np) {
        const auto offset = view_->offset_of(row, np);
        if (!offset || *offset + width > received.size()) {
            continue;
        }
        first = first.value_or(*offset);
        if (std::memcmp(&received[*first], &received[*offset], width) != 0) {
            return true;
        }
    }
    return false;
}

/// A finding about a row, as far as it is known before the NPs are asked.
static Finding finding_about(const CheckedView &view, const TreeValue &value, Level level, const char *why)
{
    const std::string path = view.tree().path_of(value.section);
    const std::string part = part_of(view, value.section);
    Finding finding{};
    finding.level = level;
    finding.what = (part.empty() ? "" : part + ": ") + name_of(value);
    finding.meaning =
        why != nullptr ? std::string("That is most often right: ") + why + "." : meaning_of_difference(path);
    return finding;
}

void NpComparison::say_values(std::size_t row, Finding told)
{
    const TreeValue &like = view_->first_of_row(row);
    std::vector<Said> said;
    std::vector<std::string> distinct; // the bytes, to give each its number
    for (std::size_t np = 0; np < view_->nps(); ++np) {
        const auto offset = view_->offset_of(row, np);
        if (!offset) {
            continue;
        }
        const auto bytes = view_->received().subspan(*offset, like.width);
        const std::string content(bytes.begin(), bytes.end());
        const auto found = std::find(distinct.begin(), distinct.end(), content);
        const auto number = static_cast<std::uint64_t>(found - distinct.begin());
        if (found == distinct.end()) {
            distinct.push_back(content);
        }
        const TreeValue *value = view_->cell(row, np);
        const std::string hidden =
            value == nullptr ? std::to_string(view_->number_at(*offset, like.width, like.place->field->kind)) : "";
        said.push_back({value == nullptr ? view_->np_section(np) : value->section, value, number, hidden, "",
                        ByteRange{*offset, like.width}, view_->path_in_np(like, np)});
    }
    if (auto finding = disagreement(*view_, said)) {
        for (Statement &statement : finding->statements) {
            statement.number.reset();
        }
        told.who = finding->who;
        told.statements = finding->statements;
        coverage_->add(std::move(told));
    }
}

/// The names of an NP's flags, as far as others do not have the same.
std::string NpComparison::flags_of(std::size_t row, std::size_t np, std::span<const std::uint8_t> mask) const
{
    const TreeValue *word = view_->cell(row, np);
    const auto names = word == nullptr ? std::span<const std::string_view>{} : view_->tree().flags_of(*word);
    std::string list;
    for (const std::string_view name : names) {
        std::size_t others = 0;
        for (std::size_t other = 0; other < view_->nps(); ++other) {
            const TreeValue *theirs = view_->cell(row, other);
            const auto flags =
                theirs == nullptr ? std::span<const std::string_view>{} : view_->tree().flags_of(*theirs);
            others += std::find(flags.begin(), flags.end(), name) == flags.end() ? 0 : 1;
        }
        if (others < view_->nps()) {
            list += (list.empty() ? "" : ", ") + std::string(name);
        }
    }
    if (!list.empty()) {
        return list;
    }
    const auto offset = view_->offset_of(row, np);
    bool is_clear = true;
    for (std::size_t i = 0; offset && i < mask.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(view_->received()[*offset + i] & mask[i]);
        is_clear = is_clear && byte == 0;
        list += hex_of_bytes({byte});
    }
    return is_clear ? "none" : "0x" + list;
}

void NpComparison::say_flags(std::size_t row, std::span<const std::uint8_t> mask, Finding told)
{
    std::vector<Said> said;
    std::vector<std::string> distinct;
    for (std::size_t np = 0; np < view_->nps(); ++np) {
        const auto offset = view_->offset_of(row, np);
        if (!offset) {
            continue;
        }
        std::string content;
        for (std::size_t i = 0; i < mask.size(); ++i) {
            content += static_cast<char>(view_->received()[*offset + i] & mask[i]);
        }
        const auto found = std::find(distinct.begin(), distinct.end(), content);
        const auto number = static_cast<std::uint64_t>(found - distinct.begin());
        if (found == distinct.end()) {
            distinct.push_back(content);
        }
        const TreeValue *word = view_->cell(row, np);
        said.push_back({word == nullptr ? view_->np_section(np) : word->section, word, number, flags_of(row, np, mask),
                        "", ByteRange{*offset, mask.size()}, view_->path_in_np(view_->first_of_row(row), np)});
    }
    if (auto finding = disagreement(*view_, said)) {
        told.who = finding->who;
        told.statements = finding->statements;
        coverage_->add(std::move(told), true);
    }
}

/// The flags that no fact is about; those that may differ are told apart.
void NpComparison::compare_word(std::size_t row)
{
    const TreeValue &word = view_->first_of_row(row);
    const MayDiffer *excepted = may_differ(word);
    const std::size_t width = word.width;
    std::vector<std::uint8_t> wanted(width, 0xff);
    std::vector<std::uint8_t> rest(width, 0);
    for (std::size_t bit = 0; bit < 8 * width; ++bit) {
        const auto mask = static_cast<std::uint8_t>(0x80U >> bit % 8);
        const std::size_t from_lowest = 8 * width - 1 - bit;
        const bool is_excepted = excepted != nullptr && (excepted->flags >> from_lowest & 1U) != 0;
        if (is_excepted || coverage_->has_bit(row, static_cast<int>(bit))) {
            wanted[bit / 8] = static_cast<std::uint8_t>(wanted[bit / 8] & ~mask);
        }
        if (is_excepted) {
            rest[bit / 8] = static_cast<std::uint8_t>(rest[bit / 8] | mask);
        }
    }
    say_flags(row, wanted, finding_about(*view_, word, Level::error, nullptr));
    if (excepted != nullptr) {
        say_flags(row, rest, finding_about(*view_, word, Level::may_differ, excepted->why));
    }
}

void NpComparison::compare_row(std::size_t row)
{
    const TreeValue &value = view_->first_of_row(row);
    const bool is_their_number = value.key == "np";
    if (is_their_number || coverage_->has_row(row) || !value.place || value.place->record == nullptr || !differs(row)) {
        return;
    }
    if (std::any_of(decided_.begin(), decided_.end(),
                    [&](std::size_t decided) { return view_->are_of_a_section(row, decided); })) {
        return;
    }
    if (value.is_word) {
        return compare_word(row);
    }
    const MayDiffer *excepted = may_differ(value);
    say_values(row, finding_about(*view_, value, excepted == nullptr ? Level::error : Level::may_differ,
                                  excepted == nullptr ? nullptr : excepted->why));
    if (decides(value)) {
        decided_.push_back(row);
    }
}

void NpComparison::compare()
{
    decided_.clear();
    for (std::size_t row = 0; row < view_->rows(); ++row) {
        compare_row(row);
    }
}

} // namespace l2fib

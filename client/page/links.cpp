#include "client/page/links.h"

#include "client/page/bytes.h"

#include <algorithm>

namespace l2fib
{

using recording::ByteRun;
using recording::TreeValue;

void Links::begin(std::size_t object, const CheckedView &view, recording::BytesRecorder &bytes,
                  const std::vector<Finding> &findings)
{
    object_ = object;
    const auto values = view.tree().values();
    values_ = values.data();
    origins_.clear();
    for (std::uint32_t i = 0; i < values.size(); ++i) {
        if (values[i].place && values[i].place->offset < view.received().size()) {
            origins_.push_back({values[i].place->offset, i});
        }
    }
    std::stable_sort(origins_.begin(), origins_.end(),
                     [](const Origin &one, const Origin &other) { return one.offset < other.offset; });
    take_findings(findings);
    begins_.clear();
    bytes.for_each_run([this](const ByteRun &run) {
        if (!values_of(run).empty() || level_of(run)) {
            begins_.push_back(run.offset);
        }
    });
}

void Links::take_findings(const std::vector<Finding> &findings)
{
    by_path_.clear();
    by_bytes_.clear();
    widest_mark_ = 0;
    for (const Finding &finding : findings) {
        for (const Statement &statement : finding.statements) {
            if (!statement.path.empty()) {
                by_path_.emplace_back(statement.path, finding.level);
            }
            if (statement.bytes) {
                const std::size_t offset = statement.bytes->offset;
                by_bytes_.push_back({offset, offset + statement.bytes->width, finding.level});
                widest_mark_ = std::max(widest_mark_, statement.bytes->width);
            }
        }
    }
    std::sort(by_path_.begin(), by_path_.end());
    std::sort(by_bytes_.begin(), by_bytes_.end(), [](const Mark &a, const Mark &b) { return a.offset < b.offset; });
}

std::string Links::value_id(const TreeValue &value) const
{
    return value_id(static_cast<std::uint32_t>(&value - values_));
}

std::string Links::bytes_id(std::size_t offset) const
{
    return id('b', hex_number(offset));
}

std::string Links::to_bytes_of(const TreeValue &value) const
{
    return value.place ? to_bytes_at(value.place->offset) : std::string();
}

std::string Links::to_bytes_at(std::size_t offset) const
{
    const auto after = std::upper_bound(begins_.begin(), begins_.end(), offset);
    return after == begins_.begin() ? std::string() : '#' + bytes_id(*std::prev(after));
}

std::span<const Links::Origin> Links::values_of(const ByteRun &run) const
{
    const auto is_before = [](const Origin &origin, std::size_t offset) { return origin.offset < offset; };
    const auto first = std::lower_bound(origins_.begin(), origins_.end(), run.offset, is_before);
    const auto last = std::lower_bound(first, origins_.end(), run.offset + run.size, is_before);
    return {first, last};
}

std::optional<Level> Links::level_of(const std::string &path) const
{
    const auto found = std::lower_bound(by_path_.begin(), by_path_.end(), std::pair(path, Level::error));
    return found != by_path_.end() && found->first == path ? std::optional(found->second) : std::nullopt;
}

std::optional<Level> Links::level_of(const ByteRun &run) const
{
    const std::size_t first = run.offset - std::min(run.offset, widest_mark_);
    auto mark = std::lower_bound(by_bytes_.begin(), by_bytes_.end(), first,
                                 [](const Mark &one, std::size_t offset) { return one.offset < offset; });
    std::optional<Level> worst;
    for (; mark != by_bytes_.end() && mark->offset < run.offset + run.size; ++mark) {
        if (mark->end > run.offset && (!worst || mark->level < *worst)) {
            worst = mark->level;
        }
    }
    return worst;
}

std::string_view class_of(std::optional<Level> level)
{
    if (!level) {
        return {};
    }
    return *level == Level::error ? "e" : *level == Level::note ? "n" : "m";
}

} // namespace l2fib

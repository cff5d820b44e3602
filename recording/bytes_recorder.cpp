#include "recording/bytes_recorder.h"

#include <algorithm>
#include <numeric>
#include <queue>

namespace recording
{

void BytesRecorder::show(const Source &source, std::string_view key, std::string text)
{
    const auto offset = source.field == nullptr ? std::nullopt : map().offset_of(source.field);
    if (!offset || *offset + source.width > size_) {
        return;
    }
    std::string path = this->path();
    path += path.empty() ? "" : ".";
    path += key;
    shown_.push_back({*offset, source.width, std::move(path), std::move(text)});
}

void BytesRecorder::value(const Value &value)
{
    if (in_failure_ || value.source.field == nullptr || value.source.is_said) {
        return;
    }
    std::string text(trimmed(value.printed));
    if (value.kind == Value::hex_number && value.label.ends_with("0x")) {
        text.insert(0, "0x");
    } else if (value.kind == Value::truth) {
        text = value.number != 0 ? "true" : "false";
    }
    show(value.source, key_of(value), std::move(text));
}

void BytesRecorder::open_flags(std::span<const Source> words)
{
    flag_words_.assign(words.begin(), words.end());
    flag_names_.clear();
}

void BytesRecorder::flag(std::string_view name)
{
    flag_names_ += flag_names_.empty() ? "" : ", ";
    flag_names_ += trimmed(name);
}

void BytesRecorder::unnamed_flags(std::uint32_t bits)
{
    for (; bits != 0; bits &= bits - 1) {
        flag('#' + std::to_string(__builtin_ctz(bits)));
    }
}

void BytesRecorder::close_flags()
{
    if (flag_words_.front().field == last_flags_) {
        return; // some of the same flags, once more
    }
    last_flags_ = flag_words_.front().field;
    for (const Source &word : flag_words_) {
        show(word, name_of(flag_words_.front()), flag_names_);
    }
}

/// Walks through the records of the show data, from its first byte to its last.
class RecordWalk
{
public:
    explicit RecordWalk(std::span<const ShowDataMap::Run> runs) : runs_(runs), by_offset_(runs.size())
    {
        std::iota(by_offset_.begin(), by_offset_.end(), std::size_t{0});
        std::stable_sort(by_offset_.begin(), by_offset_.end(),
                         [runs](std::size_t one, std::size_t other) { return runs[one].offset < runs[other].offset; });
    }

    /// The run that begins at an offset, which is higher each time, and ends no later than `end`, with its field.
    ByteRun run_at(std::size_t offset, std::size_t end);

private:
    [[nodiscard]] static std::size_t end_of(const ShowDataMap::Run &run) { return run.offset + run.size * run.count; }

    std::span<const ShowDataMap::Run> runs_;
    std::vector<std::size_t> by_offset_;
    std::size_t next_ = 0;
    std::priority_queue<std::size_t> reached_; ///< those that may hold the offset: the one reached last says most
};

/// Puts the path of the field at an offset of its record into `run`. Returns where the field ends in the record.
static std::size_t name_field(ByteRun &run, const RecordInfo &type, std::size_t offset)
{
    const auto after = std::upper_bound(type.fields.begin(), type.fields.end(), offset,
                                        [](std::size_t at, const FieldInfo &field) { return at < field.offset; });
    const FieldInfo &field = *std::prev(after);
    const std::size_t index = (offset - field.offset) / field.size;
    const std::size_t begin = field.offset + index * field.size;
    run.field += run.field.empty() ? "" : ".";
    run.field += field.name;
    if (field.is_array) {
        run.field += '[' + std::to_string(index) + ']';
    }
    return begin + (field.record == nullptr ? field.size : name_field(run, *field.record, offset - begin));
}

ByteRun RecordWalk::run_at(std::size_t offset, std::size_t end)
{
    for (; next_ < by_offset_.size() && runs_[by_offset_[next_]].offset <= offset; ++next_) {
        reached_.push(by_offset_[next_]);
    }
    while (!reached_.empty() && end_of(runs_[reached_.top()]) <= offset) {
        reached_.pop();
    }
    if (next_ < by_offset_.size()) {
        end = std::min(end, runs_[by_offset_[next_]].offset);
    }
    ByteRun run;
    run.offset = offset;
    if (!reached_.empty()) {
        const ShowDataMap::Run &records = runs_[reached_.top()];
        run.record = records.type->name.substr(0, records.type->name.find('<'));
        run.record_size = records.size;
        run.record_offset = offset - (offset - records.offset) % records.size;
        end = std::min(end, run.record_offset + name_field(run, *records.type, offset - run.record_offset));
    }
    run.size = end - offset;
    return run;
}

void BytesRecorder::for_each_run(const std::function<void(const ByteRun &run)> &take)
{
    const auto is_before = [](const ShownValue &one, const ShownValue &other) { return one.offset < other.offset; };
    std::stable_sort(shown_.begin(), shown_.end(), is_before);
    RecordWalk walk(map().runs());
    const std::span<const ShownValue> shown = shown_;
    std::size_t done = 0; // of those values
    for (std::size_t at = 0; at < size_;) {
        const std::size_t begin = done;
        std::size_t end = at;
        // Values of the same bytes, or of some of them.
        while (done < shown.size() && (shown[done].offset == at || shown[done].offset < end)) {
            end = std::max(end, shown[done].offset + shown[done].size);
            ++done;
        }
        ByteRun run = walk.run_at(at, done < shown.size() ? shown[done].offset : size_);
        if (done > begin) {
            run.size = end - at;
            run.values = shown.subspan(begin, done - begin);
        }
        at += run.size;
        take(run);
    }
}

} // namespace recording

#include "recording/bytes_recorder.h"

#include <algorithm>

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
    shown_.push_back({*offset, source.width, {std::move(path), std::move(text)}});
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

void BytesRecorder::close_flags()
{
    for (const Source &word : flag_words_) {
        show(word, name_of(flag_words_.front()), flag_names_);
    }
}

/// A field of the show data that has no fields of its own.
struct Leaf {
    std::size_t offset;
    std::size_t size;
    std::string name;
};

static void add_leaves(std::vector<Leaf> &leaves, const RecordInfo &type, std::size_t offset, const std::string &name)
{
    for (const FieldInfo &field : type.fields) {
        for (std::size_t i = 0; i < field.count; ++i) {
            const std::size_t at = offset + field.offset + i * field.size;
            std::string path = name + '.' + std::string(field.name);
            if (field.is_array) {
                path += '[' + std::to_string(i) + ']';
            }
            if (field.record != nullptr) {
                add_leaves(leaves, *field.record, at, path);
            } else {
                leaves.push_back({at, field.size, std::move(path)});
            }
        }
    }
}

std::vector<ByteRun> BytesRecorder::runs()
{
    std::vector<Leaf> leaves;
    for (const ShowDataMap::Run &run : map().runs()) {
        for (std::size_t i = 0; i < run.count; ++i) {
            add_leaves(leaves, *run.type, run.offset + i * run.size, std::string(run.type->name));
        }
    }
    // Of records that were reached twice, the later one says more: a part of the earlier one.
    std::reverse(leaves.begin(), leaves.end());
    const auto by_offset = [](const auto &one, const auto &other) { return one.offset < other.offset; };
    std::stable_sort(leaves.begin(), leaves.end(), by_offset);
    std::stable_sort(shown_.begin(), shown_.end(), by_offset);

    std::vector<ByteRun> runs;
    auto leaf = leaves.begin();
    auto shown = shown_.begin();
    for (std::size_t at = 0; at < size_;) {
        while (leaf != leaves.end() && leaf->offset + leaf->size <= at) {
            ++leaf;
        }
        while (shown != shown_.end() && shown->offset < at) {
            ++shown; // bytes within others that are shown
        }
        ByteRun run{at, 0, {}, {}};
        std::size_t end = size_;
        if (leaf != leaves.end()) {
            const bool is_in_leaf = leaf->offset <= at;
            end = std::min(end, is_in_leaf ? leaf->offset + leaf->size : leaf->offset);
            run.field = is_in_leaf ? leaf->name : "";
        }
        if (shown != shown_.end()) {
            end = shown->offset > at ? std::min(end, shown->offset) : at + shown->size;
        }
        for (; shown != shown_.end() && shown->offset == at; ++shown) {
            end = std::max(end, at + shown->size);
            run.values.push_back(shown->value);
        }
        run.size = end - at;
        at = end;
        runs.push_back(std::move(run));
    }
    return runs;
}

} // namespace recording

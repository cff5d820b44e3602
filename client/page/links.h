// Where the values and the bytes of an object are on the page, and which of them belong together.
#pragma once

#include "client/check/checked_view.h"
#include "client/check/findings.h"
#include "recording/bytes_recorder.h"

namespace l2fib
{

class Links
{
public:
    /// A value that comes from bytes.
    struct Origin {
        std::size_t offset;
        std::uint32_t value; ///< of the tree
    };

    /// Of the object with this number. The bytes are those of the same view.
    void begin(std::size_t object, const CheckedView &view, recording::BytesRecorder &bytes,
               const std::vector<Finding> &findings);

    /// "o3"
    [[nodiscard]] std::string object_id() const { return 'o' + std::to_string(object_); }

    /// "3v17"
    [[nodiscard]] std::string value_id(std::uint32_t value) const { return id('v', std::to_string(value)); }
    [[nodiscard]] std::string value_id(const recording::TreeValue &value) const;

    /// "3b28a": where bytes begin on the page.
    [[nodiscard]] std::string bytes_id(std::size_t offset) const;

    /// "#3b28a": to the bytes that a value comes from; empty when it comes from none.
    [[nodiscard]] std::string to_bytes_of(const recording::TreeValue &value) const;

    /// "#3b28a": to the run that an offset is in; empty when the page does not have it.
    [[nodiscard]] std::string to_bytes_at(std::size_t offset) const;

    /// The values that come from a run, by their place.
    [[nodiscard]] std::span<const Origin> values_of(const recording::ByteRun &run) const;

    /// The worst finding about a path, or about bytes of a run.
    [[nodiscard]] std::optional<Level> level_of(const std::string &path) const;
    [[nodiscard]] std::optional<Level> level_of(const recording::ByteRun &run) const;

    [[nodiscard]] bool has_marks() const { return !by_path_.empty(); }

private:
    struct Mark {
        std::size_t offset;
        std::size_t end;
        Level level;
    };

    [[nodiscard]] std::string id(char kind, const std::string &place) const
    {
        return std::to_string(object_) + kind + place;
    }
    void take_findings(const std::vector<Finding> &findings);

    std::size_t object_ = 0;
    const recording::TreeValue *values_ = nullptr;
    std::vector<Origin> origins_;     ///< by offset
    std::vector<std::size_t> begins_; ///< of the runs that links lead to
    std::vector<std::pair<std::string, Level>> by_path_;
    std::vector<Mark> by_bytes_; ///< by offset
    std::size_t widest_mark_ = 0;
};

/// The class of a mark on the page: "e", "n" or "m"; empty for none.
std::string_view class_of(std::optional<Level> level);

} // namespace l2fib

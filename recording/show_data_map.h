// Which record and field each part of the show data belongs to, as far as a view has come to it.
#pragma once

#include "recording/recorder.h"

#include <optional>
#include <string>
#include <vector>

namespace recording
{

/// A field where it is in the show data.
struct Place {
    std::size_t offset = 0;             ///< from the first byte of the show data
    const FieldInfo *field = nullptr;   ///< null where no record is known
    std::size_t index = 0;              ///< of an array's element
    const RecordInfo *record = nullptr; ///< that the field is in

    /// Where the record begins.
    [[nodiscard]] std::size_t record_offset() const { return offset - field->offset - index * field->size; }

    /// The field's name, with the index of an element after it.
    [[nodiscard]] std::string name() const;
};

class ShowDataMap
{
public:
    /// Begins anew, with other show data.
    void begin(std::span<const std::uint8_t> show_data);

    void reached(const RecordInfo *type, const void *first, std::size_t size, std::size_t count);
    void copied(const void *to, const void *from, std::size_t size);

    /// The offset of an address in the show data or in a copy of a part of it.
    [[nodiscard]] std::optional<std::size_t> offset_of(const void *address) const;

    /// The field that begins at an address.
    [[nodiscard]] std::optional<Place> place_of(const void *address) const;

    /// Records one after the other, all of a type.
    struct Run {
        std::size_t offset;
        std::size_t size; ///< of one
        std::size_t count;
        const RecordInfo *type;
    };
    [[nodiscard]] std::span<const Run> runs() const { return runs_; }

    /// Keeps all runs. Otherwise those of long show data are forgotten when others have come, but for the first.
    void keep_all() { keeps_all_ = true; }

private:
    struct Copy {
        const std::uint8_t *begin;
        std::size_t size;
        std::size_t offset;
    };

    [[nodiscard]] const Run *run_at(std::size_t offset) const;

    std::span<const std::uint8_t> show_data_;
    std::vector<Run> runs_;
    std::size_t end_of_runs_ = 0; ///< none reaches further
    std::vector<Copy> copies_;
    mutable std::size_t last_run_ = 0; // where the last answer was found
    mutable std::size_t last_copy_ = 0;
    bool keeps_all_ = false;
};

} // namespace recording

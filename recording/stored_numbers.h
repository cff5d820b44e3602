// Show data whose line card stores its own numbers in the other byte order than this machine.
#pragma once

#include "recording/recorder.h"

#include <unordered_map>
#include <vector>

namespace recording
{

/// Turns the stored numbers round that a view comes to. A view may decide by one of them how far it goes, so this is
/// done before the view reads them: it is shown a copy, and what is turned round there is turned round in the show
/// data, too.
class StoredNumberTurner : public Recorder
{
public:
    StoredNumberTurner(std::span<std::uint8_t> copy, std::span<std::uint8_t> show_data)
        : copy_(copy), show_data_(show_data), is_turned_(copy.size())
    {
    }

    void reached(const RecordInfo *type, const void *first, std::size_t size, std::size_t count) override;

    void open_section(const char * /*key*/) override {}
    void open_element(const char * /*key*/) override {}
    void close() override {}
    void value(const Value & /*value*/) override {}
    void open_flags(std::span<const Source> /*words*/) override {}
    void flag(std::string_view /*name*/) override {}
    void unnamed_flags(std::uint32_t /*bits*/) override {}
    void close_flags() override {}
    void open_failure() override {}
    void close_failure(std::string_view /*text*/) override {}
    void copied(const void * /*to*/, const void * /*from*/, std::size_t /*size*/) override {}

private:
    struct Number {
        std::size_t offset;
        std::size_t size;
    };

    const std::vector<Number> &stored_numbers_of(const RecordInfo &type);
    void turn(std::size_t offset, std::size_t size);

    std::span<std::uint8_t> copy_;
    std::span<std::uint8_t> show_data_;
    std::vector<bool> is_turned_; ///< by the offset of a number: a view may come to a record twice
    std::unordered_map<const RecordInfo *, std::vector<Number>> stored_numbers_;
};

} // namespace recording

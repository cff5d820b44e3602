// Working copies of records, where the show data itself must stay as it was received.
#pragma once

#include "common/record.h"
#include "common/recording.h"

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace l2fib
{

// These call libc. Left to itself, GCC fills and copies a few KiB with string instructions, which took a sixth of the
// time of the view of a VPLS PW.

/// Memory for release_bytes, or null. Every byte of it is `fill`.
void *obtain_bytes(std::size_t size, std::uint8_t fill);

void release_bytes(void *bytes);

void copy_bytes(void *to, const void *from, std::size_t size);

/// Records on the heap for as long as their view runs: the only memory that the library allocates.
template <class Record>
class WorkingCopies
{
    static_assert(std::is_trivially_copyable_v<Record>);

public:
    WorkingCopies(std::size_t count, std::uint8_t fill)
        : records_(static_cast<Received<Record> *>(obtain_bytes(count * sizeof(Record), fill)))
    {
    }
    ~WorkingCopies() { release_bytes(records_); }
    WorkingCopies(const WorkingCopies &) = delete;
    WorkingCopies &operator=(const WorkingCopies &) = delete;

    /// False when there was no memory: there are no records then.
    [[nodiscard]] bool obtained() const { return records_ != nullptr; }

    /// Copies a received record into one of them, and converts it.
    void fill_in(std::size_t index, const Received<Record> &received)
    {
        copy_bytes(&records_[index], &received, sizeof received);
        records_[index].to_host();
    }

    const Record &operator[](std::size_t index) const { return records_[index].converted_before(); }

private:
    Received<Record> *records_;
};

/// A copy of a record, in host order. The show data stays as received.
template <class Record>
class HostCopy
{
public:
    explicit HostCopy(const Received<Record> &received)
    {
        copy_bytes(&copy_, &received, sizeof received);
        copy_.to_host();
    }

    [[nodiscard]] const Record &record() const { return copy_.converted_before(); }
    const Record *operator->() const { return &record(); }

private:
    Received<Record> copy_;
};

} // namespace l2fib

// Working copies of records, where the show data itself must stay as it was received.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>

namespace l2fib
{

// Both by libc. What compilers make of a fill or an assignment of a few KiB takes longer than to print the record.

/// Memory for the caller to free, or null. Every byte of it is `fill`.
void *obtain_bytes(std::size_t size, std::uint8_t fill);

void copy_bytes(void *to, const void *from, std::size_t size);

/// Records on the heap for as long as their view runs: the only memory that the library allocates.
template <class Record>
class WorkingCopies
{
    static_assert(std::is_trivially_copyable_v<Record>);

public:
    WorkingCopies(std::size_t count, std::uint8_t fill)
        : records_(static_cast<Record *>(obtain_bytes(count * sizeof(Record), fill)))
    {
    }
    ~WorkingCopies() { std::free(records_); }
    WorkingCopies(const WorkingCopies &) = delete;
    WorkingCopies &operator=(const WorkingCopies &) = delete;

    /// False when there was no memory: there are no records then.
    [[nodiscard]] bool obtained() const { return records_ != nullptr; }

    /// Makes one of them a received record, in host order.
    void fill_in(std::size_t index, const Record &received)
    {
        copy_bytes(&records_[index], &received, sizeof received);
        records_[index].to_host();
    }

    const Record &operator[](std::size_t index) const { return records_[index]; }

private:
    Record *records_;
};

/// A record in host order, apart from the show data that it lies in.
template <class Record>
Record private_copy(const Record &received)
{
    Record copy;
    copy_bytes(&copy, &received, sizeof copy);
    copy.to_host();
    return copy;
}

} // namespace l2fib

// Prints what checks find: as text for people, or as lines of JSON.
#pragma once

#include "client/check/checked_object.h"
#include "client/parallel/parcel.h"
#include "recording/json_writer.h"

namespace l2fib
{

class CheckReport
{
public:
    explicit CheckReport(bool json) : json_(json) {}

    /// An object, as far as there is something to say of it. `received` is its show data.
    void object(const CheckedObject &object, std::span<const std::uint8_t> received);

    /// Findings that are about several objects of the files.
    void across(const std::vector<Finding> &findings);

    /// The line at the end.
    void end();

    [[nodiscard]] ExitStatus status() const;

    /// Hands what was printed to standard output.
    void flush() { writer_.flush(); }

    /// What is counted for the end.
    void hand_over(Parcel &parcel);
    void take_over(OpenedParcel &parcel);

private:
    void write_object(const CheckedObject &object, std::span<const std::uint8_t> received);
    void write_findings(const std::vector<Finding> &findings, std::span<const std::uint8_t> received);

    void name_unchecked(const std::string &object);

    struct Counts {
        std::size_t objects = 0;
        std::size_t disagreeing = 0;
        std::size_t across = 0;
        std::size_t unchecked = 0;
    };

    bool json_;
    recording::JsonWriter writer_{stdout};
    Counts counts_;
    std::vector<std::string> first_unchecked_; ///< named at the end
};

/// The findings of an object, below a line that says which it is.
std::string text_of(const std::string &heading, const std::vector<Finding> &findings,
                    std::span<const std::uint8_t> received);

} // namespace l2fib

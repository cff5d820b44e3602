// Prints what checks find: as text for people, or as lines of JSON.
#pragma once

#include "client/check/checked_object.h"
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

private:
    void write_object(const CheckedObject &object, std::span<const std::uint8_t> received);
    void write_findings(const std::vector<Finding> &findings, std::span<const std::uint8_t> received);

    bool json_;
    recording::JsonWriter writer_{stdout};
    std::size_t objects_ = 0;
    std::size_t disagreeing_ = 0;
    std::size_t across_ = 0;
    std::size_t unchecked_ = 0;
    std::vector<std::string> first_unchecked_; ///< named at the end
};

/// The findings of an object, below a line that says which it is.
std::string text_of(const std::string &heading, const std::vector<Finding> &findings,
                    std::span<const std::uint8_t> received);

} // namespace l2fib

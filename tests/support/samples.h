// Tests of each sample capture.
#pragma once

#include "client/capture_line.h"
#include "examples/sample_lines.h"
#include "tests/support/printed.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace l2fib
{

class Samples : public testing::TestWithParam<SampleCapture>
{
protected:
    Capture capture = parse_capture(sample_line(GetParam())).capture;

    /// What the first bytes of its show data show.
    [[nodiscard]] Shown show(std::size_t size) const
    {
        const GuardedBytes data(
            {capture.show_data.begin(), capture.show_data.begin() + static_cast<std::ptrdiff_t>(size)});
        return shown([&] { return capture.show({data.data(), data.size()}); });
    }
};

inline std::string sample_name(const testing::TestParamInfo<SampleCapture> &sample)
{
    std::string name = sample.param.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace l2fib

// Show data as it comes in a bug report: raw bytes, or a hex dump.
#pragma once

#include "client/hex_dump.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace l2fib
{

/// More than any object has. What is longer is no show data, and is not read into memory.
constexpr std::size_t longest_show_data = std::size_t{4} << 20U;

struct ShowDataFile {
    std::vector<std::uint8_t> show_data;
    std::string error; ///< why there is none
};

struct ShowDataFormat {
    const char *name;
    std::optional<HexForm> hex; ///< none for raw bytes
};
inline constexpr ShowDataFormat show_data_formats[] = {
    {"raw", std::nullopt}, {"hex", HexForm::any},         {"plain", HexForm::plain},
    {"xxd", HexForm::xxd}, {"hexdump", HexForm::hexdump},
};

struct ChosenFormat {
    std::optional<HexForm> hex; ///< none for raw bytes
    bool is_told = false;       ///< so that nothing is guessed from the bytes
};

/// Reads a file, or standard input for "-". An empty one is an error.
ShowDataFile read_show_data(const std::string &path, const ChosenFormat &format);

} // namespace l2fib

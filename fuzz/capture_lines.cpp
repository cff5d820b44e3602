#include "fuzz/capture_lines.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <vector>

// The fuzzer's own changes, at random. NOLINTNEXTLINE(readability-identifier-naming)
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t max_size);

namespace l2fib
{

using Random = std::minstd_rand;
using Choices = std::vector<std::string>;

struct VariedMember {
    Choices names; ///< the same one, written in several ways
    Choices values;
    unsigned object_once_in = 32; ///< an object in their place
};

static const Choices numbers = {"0", "1", "010", "4294967295", "4294967296", "\"0x1e1000\"", "\"010\"", "\"0x\""};

static const VariedMember members[] = {
    {{"object", "obj\\u0065ct"},
     {"\"ac\"", "\"pw\"", "\"bridge\"", "\"bridge-port\"", "\"mac\"", "\"nhop\"", "\"resources\"", "\"hal-summary\""}},
    {{"show_data", "show_data", "show\\u005fdata"},
     {"\"\"", "\"00\"", "\"0aFf\"", "\"1\"", "\"\\u0030\"", "\"00\\\\\""}},
    {{"node"}, numbers},
    {{"card"}, numbers},
    {{"direction"}, {"\"ingress\"", "\"egress\""}},
    {{"view", "\\u0076iew"}, {"\"detail\"", "\"private\"", "\"inconsistent\""}},
    {{"byte_order"}, {"\"little\"", "\"big\""}},
    {{"monotonic_seconds"}, numbers},
    {{"wall_seconds"}, numbers},
    {{"time_zone"}, {"\"UTC0\"", "\"CET-1CEST,M3.5.0,M10.5.0/3\"", "\"<+03>-3\"", "\":UTC0\""}},
    {{"virtual_interfaces"}, {"[]", "[1]", "[\"0x9\", 2]", "[[1]]"}},
    {{"remark", "remark", "remark", "\\\"show_data\\\":\\\"00\\\"", "SHOW_DATA", "show_data "},
     {"null", "[{\"node\":1}]", "\"\\\"show_data\\\":\\\"00\\\"\"", "\"show_data\"", "\"\\ud83d\\ude00\""},
     2},
};

static const Choices odd_values = {"null",
                                   "true",
                                   "-1",
                                   "-0",
                                   "1.5",
                                   "1e400",
                                   "-1e5000",
                                   std::string(400, '9'),
                                   "18446744073709551615",
                                   "18446744073709551616",
                                   "\"\"",
                                   "\"show_data\"",
                                   "[]",
                                   "{}"};
static const Choices blanks = {"", "", "", "", "", "", " ", " ", "  ", "\t", "\r"};

template <class Elements>
static const auto &one_of(const Elements &elements, Random &random)
{
    return elements[random() % std::size(elements)];
}

static bool happens(unsigned once_in, Random &random)
{
    return random() % once_in == 0;
}

static std::string compose_object(bool is_capture, unsigned depth, Random &random);

static std::string compose_member(const VariedMember &member, unsigned depth, Random &random)
{
    constexpr unsigned deepest = 3;
    std::string value = one_of(happens(8, random) ? odd_values : member.values, random);
    if (depth < deepest && happens(member.object_once_in, random)) {
        value = compose_object(false, depth + 1, random);
    }
    const std::string &blank = one_of(blanks, random);
    return blank + '"' + one_of(member.names, random) + '"' + one_of(blanks, random) + ':' + blank + value + blank;
}

/// An object with some members. A capture has those that it needs, and so is read as one most often.
static std::string compose_object(bool is_capture, unsigned depth, Random &random)
{
    constexpr std::size_t needed = 2; // the first of them
    std::vector<std::string> parts;
    for (std::size_t i = 0; i < needed && is_capture && !happens(16, random); ++i) {
        parts.push_back(compose_member(members[i], depth, random));
    }
    for (std::size_t more = random() % 4; more != 0; --more) {
        const bool is_passed_over = happens(4, random);
        const VariedMember &member = is_passed_over ? *std::rbegin(members) : one_of(members, random);
        parts.push_back(compose_member(member, depth, random));
    }
    std::shuffle(parts.begin(), parts.end(), random);
    std::string text = "{";
    for (const std::string &part : parts) {
        text += (text.size() == 1 ? "" : ",") + part;
    }
    return text + '}';
}

/// The line with other digits, or another text in their place.
static std::string with_other_digits(const std::string &line, Random &random)
{
    const std::string name = "\"show_data\":\"";
    const std::size_t found = line.find(name);
    if (found == std::string::npos) {
        return line;
    }
    const std::size_t begin = found + name.size();
    const std::size_t end = std::min(line.find('"', begin), line.size());
    static const Choices digits = {"", "0", "00", "11", "0A0b", "0g", "*", "\\", "\t"};
    return line.substr(0, begin) + one_of(digits, random) + line.substr(end);
}

/// The line with one member more, at either end.
static std::string with_another_member(const std::string &line, Random &random)
{
    const std::string member = compose_member(one_of(members, random), 1, random);
    const bool is_first = happens(2, random);
    const std::size_t brace = is_first ? line.find('{') : line.rfind('}');
    if (brace == std::string::npos) {
        return line;
    }
    return is_first ? line.substr(0, brace + 1) + member + ',' + line.substr(brace + 1)
                    : line.substr(0, brace) + ',' + member + line.substr(brace);
}

static std::vector<std::string> lines_of(const std::string &text)
{
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

std::size_t mutate_lines(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    Random random(seed);
    if (happens(4, random)) {
        return LLVMFuzzerMutate(data, size, max_size);
    }
    std::vector<std::string> lines = lines_of({reinterpret_cast<const char *>(data), size});
    const auto composed = [&] { return compose_object(true, 1, random) + (happens(16, random) ? "{}" : ""); };
    if (lines.empty()) {
        lines.push_back(composed());
    }
    constexpr std::size_t many = 4; // a few lines have all that lines can do to each other
    if (lines.size() > many) {
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(random() % lines.size()));
    }
    std::string &line = lines[random() % lines.size()];
    switch (random() % 5) {
    case 0: line = composed(); break;
    case 1: line = with_another_member(line, random); break;
    case 2: lines.push_back(with_other_digits(line, random)); break;
    case 3: lines.push_back(with_another_member(line, random)); break;
    default: lines.push_back(composed()); break;
    }
    std::string text;
    for (const std::string &each : lines) {
        text += each + '\n';
    }
    text.resize(std::min(text.size(), max_size));
    std::copy(text.begin(), text.end(), data);
    return text.size();
}

} // namespace l2fib

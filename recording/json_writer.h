// JSON as it comes, without a tree: members and elements in the order in which they are written.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace recording
{

/// Writes one object after the other, each on a line.
class JsonWriter
{
public:
    explicit JsonWriter(std::FILE *stream) : stream_(stream) {}
    ~JsonWriter() { flush(); }
    JsonWriter(const JsonWriter &) = delete;
    JsonWriter &operator=(const JsonWriter &) = delete;

    void open_line();
    void close_line();

    void open_object(std::string_view key);

    /// Opens an object that is an element of an array. Neighbours of one key are in one array.
    void open_element(std::string_view key);
    void close_object();

    void open_array(std::string_view key);
    void close_array();

    void member(std::string_view key, std::string_view text);
    void member(std::string_view key, std::uint64_t number);
    void member(std::string_view key, bool truth);

    /// A value that is JSON already.
    void json_member(std::string_view key, std::string_view json);

    /// A text in the array that is open.
    void element(std::string_view text);
    void element(std::uint64_t number);

    void flush();

private:
    struct Scope {
        bool has_members = false;
        std::string array; ///< the key of the array of elements that is open, if one is
    };

    void separate();
    void key(std::string_view key);
    void end_elements();
    void put_text(std::string_view text);
    void put_number(std::uint64_t number);

    std::FILE *stream_;
    std::string buffer_;
    std::vector<Scope> scopes_;
    std::size_t depth_ = 0;
};

} // namespace recording

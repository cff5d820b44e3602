// JSON as it comes, without a tree: members and elements in the order in which they are written.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
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

    void open_object(std::string_view name);

    /// Opens an object that is an element of an array. Neighbours of one key are in one array.
    void open_element(std::string_view name);
    void close_object();

    void open_array(std::string_view name);
    void close_array();

    void member(std::string_view name, std::string_view text);
    void member(std::string_view name, std::uint64_t number);
    void member(std::string_view name, bool truth);

    /// A value that is JSON already.
    void json_member(std::string_view name, std::string_view json);

    /// A text in the array that is open.
    void element(std::string_view text);
    void element(std::uint64_t number);

    void flush();

private:
    struct Scope {
        bool has_members = false;
        bool has_elements = false; ///< whether an array of elements is open
        std::string array;         ///< the key of it
    };

    void separate();
    void key(std::string_view key);
    void end_elements();
    void enter();
    void put(char c);
    void put(std::string_view json);
    void put_text(std::string_view text);
    void put_number(std::uint64_t number);

    static constexpr std::size_t buffer_size = std::size_t{1} << 16U;

    std::FILE *stream_;
    std::unique_ptr<char[]> buffer_ = std::make_unique<char[]>(buffer_size);
    std::size_t size_ = 0; ///< of what is in the buffer
    std::vector<Scope> scopes_;
    std::size_t depth_ = 0;
};

} // namespace recording

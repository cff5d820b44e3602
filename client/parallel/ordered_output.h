// What a process prints while others print, too: it appears in the order of the blocks.
#pragma once

#include "client/parallel/turn.h"
#include "client/screen.h"

#include <array>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace l2fib
{

/// Takes over standard output and messages. They are held until it is this process's turn; from then on, they go
/// straight to where they belong. Of a text that is too long to be held, the rest waits.
class OrderedOutput : private MessageHolder
{
public:
    OrderedOutput(RingPlace &place, const char *separator);
    ~OrderedOutput() override;

    /// Writes what a block of so many lines has printed. Afterwards it is this process's turn still.
    void end_block(std::size_t lines);

    /// The error by which text did not arrive; 0 when all has.
    [[nodiscard]] int lost_output() const { return turn_.lost_output; }

    void pass_turn();

private:
    struct Piece {
        bool is_message;
        std::string text;
    };

    void hold(std::string_view message) override;
    void add(bool is_message, std::string_view text);
    void take_turn();
    void write(bool is_message, std::string_view text);
    void write_text(std::string_view text);

    static constexpr std::size_t most_held = std::size_t{4} << 20U;
    static constexpr std::size_t buffer_size = most_held;

    RingPlace &place_;
    const char *separator_;
    std::unique_ptr<char[]> buffer_ = std::make_unique_for_overwrite<char[]>(buffer_size);
    std::FILE *screen_;
    std::vector<Piece> held_;
    std::size_t held_size_ = 0;
    bool has_turn_ = false;
    bool has_written_ = false; ///< text of this block
    Turn turn_{};
};

} // namespace l2fib

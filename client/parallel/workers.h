// Has several processes do the blocks of the input.
//
// One process cuts the input into blocks and hands them out in turns. Each of the others does its blocks, and prints
// what comes of them when the one before has printed: the output is that of one process. They are processes and not
// threads because standard output, the time zone and the router that views ask are of the whole process.
#pragma once

#include "client/parallel/block_work.h"
#include "client/parallel/turn.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace l2fib
{

using FillBlock = std::function<bool(Block &block)>; ///< false when nothing is left
using MakeWork = std::function<std::unique_ptr<BlockWork>()>;

/// As many processes as this one may use processors.
unsigned usual_jobs();

/// Does all blocks with as many processes, as long as what is printed gets there. `twin` makes work of the same kind
/// for each of them; what it comes to goes into `work`.
void do_blocks(const FillBlock &fill, unsigned jobs, BlockWork &work, const MakeWork &twin);

class Workers
{
public:
    Workers(unsigned count, BlockWork &work, const MakeWork &twin);
    ~Workers() { stop(); }
    Workers(const Workers &) = delete;
    Workers &operator=(const Workers &) = delete;

    /// The block to be filled next.
    Block &next_block();

    /// Has it done: the first ones here, as little input is not worth another process.
    void do_block();

    /// Waits for all of them.
    void finish();

private:
    static constexpr std::size_t blocks_of_each = 2; ///< one is done while the next one is read

    struct Worker {
        pid_t process;
        int socket;
    };

    [[nodiscard]] std::size_t next_index() const { return started_ % (blocks_of_each * count_); }
    void do_here(Block &block);
    bool fork_all();
    bool fork_one(const RingPlace &place, std::initializer_list<int> of_others);
    void take_result();
    [[noreturn]] void report_death();
    void stop();

    unsigned count_; ///< 1 when there are no others
    BlockWork &work_;
    MakeWork twin_;
    SharedBlocks blocks_;
    std::vector<Worker> workers_;
    LineCounter counter_{1};    ///< of what is done here
    std::size_t done_here_ = 0; ///< bytes
    std::size_t started_ = 0;   ///< blocks of the workers
    std::size_t done_ = 0;
};

} // namespace l2fib

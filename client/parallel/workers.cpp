#include "client/parallel/workers.h"

#include "client/diagnostics.h"
#include "client/parallel/ordered_output.h"
#include "client/parallel/socket.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <initializer_list>
#include <sched.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace l2fib
{

/// What a worker tells of a block that it has done; its parcel comes after it.
struct Result {
    std::size_t size;
    int lost_output; ///< the error by which text did not arrive; 0 when all has
    bool is_failure; ///< the parcel says why the worker cannot go on
};

unsigned usual_jobs()
{
    cpu_set_t processors;
    CPU_ZERO(&processors);
    if (sched_getaffinity(0, sizeof processors, &processors) != 0) {
        return 1;
    }
    return static_cast<unsigned>(CPU_COUNT(&processors));
}

static void send_result(int socket, Result result, const std::string &parcel)
{
    result.size = parcel.size();
    const std::string message = std::string(bytes_of(result)) + parcel; // as one, which wakes the other end once
    if (!send_all(socket, message)) {
        _exit(unusable); // nobody is there any more
    }
}

/// Who prints where lines are from has to know how many come before the block: they are counted ahead then, and nobody
/// waits until they are done.
static std::size_t run_block(const Block &block, RingPlace &place, BlockWork &work)
{
    bool is_passed = false;
    LineCounter counter([&] {
        const std::size_t line = place.line();
        place.pass_line(block.line_after(line));
        is_passed = true;
        return line;
    });
    const std::size_t lines = work.run(block, counter);
    if (!is_passed) {
        counter.set_first(place.line());
        place.pass_line(counter.number());
    }
    return lines;
}

/// What a worker does as long as it is given blocks.
static void do_all(int socket, RingPlace &place, OrderedOutput &output, SharedBlocks &blocks, const MakeWork &twin)
{
    const std::unique_ptr<BlockWork> work = twin();
    SharedBlocks own_memory(1); // which stays in the processor's cache
    Block &own = own_memory[0];
    Parcel parcel;
    for (Order order; receive_order(socket, order);) {
        const Block &shared = blocks[order.block];
        const bool is_unread = order.file.get() >= 0;
        if (is_unread) {
            own.leave(shared.parts[0].file, {order.file.get(), shared.unread.offset, shared.unread.size});
            own.fetch();
        }
        const std::size_t lines = run_block(is_unread ? own : shared, place, *work);
        work->flush();
        output.end_block(lines);
        parcel.clear();
        work->hand_over(parcel);
        send_result(socket, {0, output.lost_output(), false}, parcel.bytes());
        output.pass_turn();
    }
}

[[noreturn]] static void run_worker(int socket, RingPlace place, const char *separator, SharedBlocks &blocks,
                                    const MakeWork &twin)
{
    OrderedOutput output(place, separator);
    std::string failure;
    try {
        do_all(socket, place, output, blocks, twin);
        _exit(shown);
    } catch (const std::bad_alloc &) {
        failure = "out of memory";
    } catch (const std::exception &error) {
        failure = error.what();
    }
    output.end_block(0);
    send_result(socket, {0, output.lost_output(), true}, failure);
    _exit(unusable);
}

Workers::Workers(unsigned count, BlockWork &work, const MakeWork &twin)
    : count_(count), work_(work), twin_(twin), blocks_(count == 1 ? 1 : blocks_of_each * count)
{
}

void Workers::stop()
{
    for (const Worker &worker : workers_) {
        close(worker.socket);
        kill(worker.process, SIGKILL);
        waitpid(worker.process, nullptr, 0);
    }
    workers_.clear();
}

/// Forks a worker. It has only the ends of its own sockets, so that its neighbours notice when it is gone.
bool Workers::fork_one(const RingPlace &place, std::initializer_list<int> of_others)
{
    SocketPair own(SOCK_STREAM);
    const pid_t parent = getpid();
    const pid_t process = fork();
    if (process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) {
            _exit(unusable);
        }
        for (const int other : of_others) {
            close(other);
        }
        for (const Worker &other : workers_) {
            close(other.socket);
        }
        close(own.near.get());
        run_worker(own.far.get(), place, work_.separator(), blocks_, twin_);
    }
    if (process < 0) {
        return false;
    }
    workers_.push_back({process, own.near.release()});
    return true;
}

/// False when the system does not have so many processes.
bool Workers::fork_all()
try {
    work_.flush();
    std::fflush(stdout); // or each of them would print it
    SocketPair first(SOCK_SEQPACKET);
    RingPlace begin(-1, first.near.get());
    begin.pass_line(counter_.number());
    begin.pass_turn({work_.has_text(), is_in_screen_line(), 0, progress_state()});
    Descriptor before = std::move(first.far);
    for (unsigned number = 1; number < count_; ++number) {
        SocketPair next(SOCK_SEQPACKET);
        if (!fork_one({before.get(), next.near.get()}, {first.near.get(), next.far.get()})) {
            return false;
        }
        before = std::move(next.far);
    }
    return fork_one({before.get(), first.near.get()}, {});
} catch (const std::system_error &) {
    return false;
}

Block &Workers::next_block()
{
    while (started_ - done_ == blocks_of_each * count_) {
        take_result();
    }
    return blocks_[next_index()];
}

void Workers::do_here(Block &block)
{
    block.fetch();
    step_progress(work_.run(block, counter_));
    done_here_ += block.size;
}

void Workers::do_block()
{
    const std::size_t index = next_index();
    if (count_ != 1 && workers_.empty() && done_here_ >= Block::usual_size && !fork_all()) {
        stop();
        count_ = 1;
    }
    if (workers_.empty()) {
        return do_here(blocks_[index]);
    }
    if (!send_order(workers_[started_ % count_].socket, index, blocks_[index].unread.descriptor)) {
        report_death();
    }
    ++started_;
}

/// Takes the result of the first block that has none yet.
void Workers::take_result()
{
    const int socket = workers_[done_ % count_].socket;
    Result result{};
    std::string bytes;
    if (!receive_all(socket, &result, sizeof result)) {
        report_death();
    }
    bytes.resize(result.size);
    if (!receive_all(socket, bytes.data(), bytes.size())) {
        report_death();
    }
    ++done_;
    if (result.lost_output != 0) {
        note_lost_output(result.lost_output);
    }
    if (result.is_failure) {
        throw std::runtime_error(bytes);
    }
    OpenedParcel parcel(bytes);
    work_.take_over(parcel);
}

void Workers::finish()
{
    while (done_ != started_ && !is_output_lost()) {
        take_result();
    }
    stop();
}

/// Ends as the worker did that ended first. The others end because they miss it.
void Workers::report_death()
{
    std::string how = "ended";
    for (const Worker &worker : workers_) {
        close(worker.socket);
    }
    for (const Worker &worker : std::exchange(workers_, {})) {
        int status = 0;
        waitpid(worker.process, &status, 0);
        if (WIFSIGNALED(status)) {
            if (WTERMSIG(status) == SIGPIPE) { // nobody reads on, and nobody wants to hear of it
                std::raise(SIGPIPE);
            }
            how = std::string("ended by signal ") + std::to_string(WTERMSIG(status)) + " (" +
                  strsignal(WTERMSIG(status)) + ")";
        }
    }
    throw std::runtime_error("a process of this run was " + how);
}

void do_blocks(const FillBlock &fill, unsigned jobs, BlockWork &work, const MakeWork &twin)
{
    Workers workers(jobs, work, twin);
    while (!is_output_lost() && fill(workers.next_block())) {
        workers.do_block();
    }
    workers.finish();
}

} // namespace l2fib

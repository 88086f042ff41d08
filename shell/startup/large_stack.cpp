// A session thread with a large stack, started through POSIX threads because
// the standard thread cannot be given a stack size.
#include "shell/startup/large_stack.hpp"

#include <pthread.h>
#include <signal.h>

#include <exception>

namespace orrery::shell::startup {
namespace {

struct Job {
    const std::function<int()>* work;
    sigset_t signals;  // the caller's mask, which the session thread takes over
    int result = 0;
    std::exception_ptr failure;
};

void* runJob(void* argument) {
    Job& job = *static_cast<Job*>(argument);
    pthread_sigmask(SIG_SETMASK, &job.signals, nullptr);
    try {
        job.result = (*job.work)();
    } catch (...) {
        job.failure = std::current_exception();
    }
    return nullptr;
}

class ThreadAttributes {
public:
    ThreadAttributes() { pthread_attr_init(&attributes_); }
    ~ThreadAttributes() { pthread_attr_destroy(&attributes_); }
    ThreadAttributes(const ThreadAttributes&) = delete;
    ThreadAttributes& operator=(const ThreadAttributes&) = delete;
    pthread_attr_t* get() { return &attributes_; }

private:
    pthread_attr_t attributes_{};
};

// Blocks every signal on the calling thread for its lifetime; the thread
// started meanwhile inherits the block and lifts it itself.
class BlockedSignals {
public:
    explicit BlockedSignals(sigset_t& previous) : previous_(previous) {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, &previous_);
    }
    ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &previous_, nullptr); }
    BlockedSignals(const BlockedSignals&) = delete;
    BlockedSignals& operator=(const BlockedSignals&) = delete;

private:
    sigset_t& previous_;
};

}  // namespace

int runOnLargeStack(const std::function<int()>& work) {
    Job job{&work, {}, 0, nullptr};
    bool started = false;
    {
        const BlockedSignals blocked(job.signals);
        ThreadAttributes attributes;
        pthread_t thread{};
        started = pthread_attr_setstacksize(attributes.get(), kSessionStackSize) == 0 &&
                  pthread_create(&thread, attributes.get(), runJob, &job) == 0;
        if (started) pthread_join(thread, nullptr);
    }
    if (!started) return work();
    if (job.failure) std::rethrow_exception(job.failure);
    return job.result;
}

}  // namespace orrery::shell::startup

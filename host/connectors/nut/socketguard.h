#ifndef SOCKETGUARD_H
#define SOCKETGUARD_H

// Ends what a blocking library does with a socket when its time is over.
// May touch: sockets and the standard library. One thread of its own.

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

// libupsclient waits up to five seconds for every piece of an answer, and under TLS without any
// limit. At the deadline the guard shuts the socket down, which makes every call on it return at
// once.
class SocketGuard
{
public:
    using Clock = std::chrono::steady_clock;

    SocketGuard();
    ~SocketGuard();
    SocketGuard(const SocketGuard&) = delete;
    SocketGuard& operator=(const SocketGuard&) = delete;

    // The descriptor stays the caller's: it is not to be closed before leave().
    void watch(int fd, Clock::time_point deadline);
    // True when the time was over.
    bool leave();

    // From any thread, for good: every deadline is now.
    void abort();
    bool isAborted() const;

private:
    static constexpr int kNone = -1;
    void run();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_fd = kNone;
    Clock::time_point m_deadline;
    bool m_expired = false;
    bool m_aborted = false;
    bool m_ending = false;
    std::thread m_thread; // last: the members above exist before it runs
};

#endif // SOCKETGUARD_H

#ifndef SOCKETGUARD_H
#define SOCKETGUARD_H

// Ends what a blocking library does with a socket when its time is over.
// May touch: sockets and the standard library. One thread of its own.

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

// libupsclient waits up to five seconds for every piece of an answer, and under TLS without any
// limit. From the deadline on the guard shuts the socket down, again and again until it is told to
// leave, which makes every call on it return at once.
class SocketGuard
{
public:
    using Clock = std::chrono::steady_clock;

    SocketGuard();
    ~SocketGuard();
    SocketGuard(const SocketGuard&) = delete;
    SocketGuard& operator=(const SocketGuard&) = delete;

    // Watches the descriptor that *fd holds at the deadline; it may change until then. A descriptor
    // without a connection is left alone.
    void watch(const int* fd, Clock::time_point deadline);
    // After this *fd is not read again. True when the time was over.
    bool leave();

    // From any thread, for good: every deadline is now.
    void abort();
    bool isAborted() const;

private:
    void run();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    const int* m_fd = nullptr;
    Clock::time_point m_deadline;
    bool m_expired = false;
    bool m_aborted = false;
    bool m_ending = false;
    std::thread m_thread; // last: the members above exist before it runs
};

#endif // SOCKETGUARD_H

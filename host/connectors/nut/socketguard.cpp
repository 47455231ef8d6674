#include "socketguard.h"

#include <sys/socket.h>

namespace
{

constexpr std::chrono::milliseconds kRepeat(50);

void shutDown(int fd)
{
    sockaddr_storage peer;
    socklen_t size = sizeof peer;
    if (getpeername(fd, reinterpret_cast<sockaddr*>(&peer), &size) == 0)
        ::shutdown(fd, SHUT_RDWR);
}

} // namespace

SocketGuard::SocketGuard()
    : m_thread([this] { run(); })
{
}

SocketGuard::~SocketGuard()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void SocketGuard::watch(const int* fd, Clock::time_point deadline)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_fd = fd;
        m_deadline = deadline;
        m_expired = false;
    }
    m_changed.notify_all();
}

bool SocketGuard::leave()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_fd = nullptr;
    return m_expired;
}

void SocketGuard::abort()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_aborted = true;
    }
    m_changed.notify_all();
}

bool SocketGuard::isAborted() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_aborted;
}

void SocketGuard::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_ending) {
        if (!m_fd) {
            m_changed.wait(lock);
        } else if (!m_aborted && Clock::now() < m_deadline) {
            m_changed.wait_until(lock, m_deadline);
        } else {
            m_expired = true;
            // The library writes the descriptor in the thread that waits for it.
            const int fd = __atomic_load_n(m_fd, __ATOMIC_RELAXED);
            constexpr int kFirstSocket = 3; // 0 is what the library starts with
            if (fd >= kFirstSocket)
                shutDown(fd);
            m_changed.wait_for(lock, kRepeat);
        }
    }
}

#include "connectors/nut/socketguard.h"

#include <sys/socket.h>

SocketGuard::SocketGuard()
    : m_thread([this] { run(); })
{}

SocketGuard::~SocketGuard()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void SocketGuard::watch(int fd, Clock::time_point deadline)
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
    m_fd = kNone;
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
        if (m_fd == kNone || m_expired) {
            m_changed.wait(lock);
        } else if (!m_aborted && Clock::now() < m_deadline) {
            m_changed.wait_until(lock, m_deadline);
        } else {
            m_expired = true;
            ::shutdown(m_fd, SHUT_RDWR);
        }
    }
}

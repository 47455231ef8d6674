#include "connectors/nut/hostlookup.h"

#include <netdb.h>
#include <sys/socket.h>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace {

HostLookup::Result lookUp(const QByteArray& host, int flags)
{
    addrinfo hints = {};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = flags;
    addrinfo* found = nullptr;
    const int error = getaddrinfo(host.constData(), nullptr, &hints, &found);
    if (error != 0) {
        const bool unknown = error == EAI_NONAME || error == EAI_NODATA;
        return {unknown ? HostLookup::Outcome::UnknownName : HostLookup::Outcome::NoNameServer, {}};
    }
    HostLookup::Result result;
    for (const addrinfo* entry = found; entry; entry = entry->ai_next) {
        char text[NI_MAXHOST];
        if (getnameinfo(entry->ai_addr, entry->ai_addrlen, text, sizeof text, nullptr, 0,
                        NI_NUMERICHOST) == 0)
            result.addresses << QByteArray(text);
    }
    freeaddrinfo(found);
    result.outcome =
        result.addresses.isEmpty() ? HostLookup::Outcome::UnknownName : HostLookup::Outcome::Found;
    return result;
}

} // namespace

struct HostLookup::Shared {
    std::mutex mutex;
    std::condition_variable changed;
    bool running = false;
    bool done = false;
    bool aborted = false;
    Result result;
};

HostLookup::HostLookup()
    : m_shared(std::make_shared<Shared>())
{}

HostLookup::~HostLookup() = default;

HostLookup::Result HostLookup::find(const QByteArray& host, Clock::time_point deadline)
{
    const Result numeric = lookUp(host, AI_NUMERICHOST); // never asks anybody
    if (numeric.outcome == Outcome::Found)
        return numeric;

    std::unique_lock<std::mutex> lock(m_shared->mutex);
    // One that ended after its caller had given up still counts, or a slow name server would never
    // get to answer.
    if (!m_shared->running && !m_shared->done) {
        m_shared->running = true;
        std::thread([shared = m_shared, host = QByteArray(host.constData())] {
            const Result result = lookUp(host, AI_ADDRCONFIG);
            std::lock_guard<std::mutex> lock(shared->mutex);
            shared->result = result;
            shared->running = false;
            shared->done = true;
            shared->changed.notify_all();
        }).detach();
    }
    m_shared->changed.wait_until(lock, deadline,
                                 [this] { return m_shared->done || m_shared->aborted; });
    if (!m_shared->done)
        return {};
    m_shared->done = false;
    return m_shared->result;
}

void HostLookup::abort()
{
    {
        std::lock_guard<std::mutex> lock(m_shared->mutex);
        m_shared->aborted = true;
    }
    m_shared->changed.notify_all();
}

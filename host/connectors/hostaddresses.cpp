#include "connectors/hostaddresses.h"

#include <QHostAddress>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <netdb.h>
#include <sys/socket.h>
#include <system_error>
#include <thread>

namespace {

// Each waits for a name server that does not answer; far more than a healthy one ever needs.
constexpr int kMostLookups = 500;
std::atomic<int> g_lookups{0};

QString failureText(const QString& host, int error)
{
    if (error == EAI_NONAME || error == EAI_NODATA)
        return HostAddresses::tr("There is no host named %1; check the address.").arg(host);
    return HostAddresses::tr(
               "The name %1 could not be looked up; check the network and its name server.")
        .arg(host);
}

QString numericText(const addrinfo& entry)
{
    char text[NI_MAXHOST];
    const int error =
        getnameinfo(entry.ai_addr, entry.ai_addrlen, text, sizeof text, nullptr, 0, NI_NUMERICHOST);
    return error == 0 ? QString::fromLatin1(text) : QString();
}

void putInOrder(QStringList& addresses)
{
    addresses.removeAll(QString());
    addresses.removeDuplicates();
    // Agents of many cards listen on IPv4 only.
    std::stable_partition(addresses.begin(), addresses.end(),
                          [](const QString& text) { return !text.contains(QLatin1Char(':')); });
}

} // namespace

// Outlives the object that asked, as the resolver cannot be interrupted: neither a device that goes
// nor the end of the program waits for it.
struct HostAddresses::Lookup {
    std::mutex mutex;
    HostAddresses* asker = nullptr; // null: it has gone
};

HostAddresses::Found HostAddresses::askSystem(const QString& host)
{
    addrinfo hints = {};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_ADDRCONFIG;
    addrinfo* first = nullptr;
    const int error = getaddrinfo(host.toUtf8().constData(), nullptr, &hints, &first);
    if (error != 0)
        return {{}, failureText(host, error)};
    Found found;
    for (const addrinfo* entry = first; entry; entry = entry->ai_next)
        found.addresses << numericText(*entry);
    freeaddrinfo(first);
    putInOrder(found.addresses);
    if (found.addresses.isEmpty())
        found.error = failureText(host, EAI_NONAME);
    return found;
}

HostAddresses::HostAddresses(const QString& host, const Resolver& resolver, QObject* parent)
    : QObject(parent)
    , m_host(host)
    , m_resolver(resolver)
    , m_isNumeric(!QHostAddress(host).isNull())
{
    if (m_isNumeric)
        m_addresses << host;
}

HostAddresses::~HostAddresses()
{
    if (!m_lookup)
        return;
    const std::lock_guard<std::mutex> lock(m_lookup->mutex);
    m_lookup->asker = nullptr;
}

void HostAddresses::find(const Handler& handler)
{
    if (!m_isNumeric && (m_isDoubtful || m_addresses.isEmpty()))
        lookUp();
    if (!m_addresses.isEmpty())
        handler({m_addresses, {}});
    else if (!m_lookup)
        handler({{}, tr("Too many names are being looked up; check the network's name server.")});
    else
        m_waiting.push_back(handler);
}

void HostAddresses::fail(const QString& address)
{
    m_isDoubtful = true;
    m_failed = address;
    if (m_addresses.removeOne(address))
        m_addresses << address;
}

void HostAddresses::lookUp()
{
    if (m_lookup || g_lookups >= kMostLookups)
        return;
    const auto lookup = std::make_shared<Lookup>();
    lookup->asker = this;
    ++g_lookups;
    try {
        std::thread([lookup, resolver = m_resolver, host = m_host] {
            const Found found = resolver(host);
            --g_lookups;
            const std::lock_guard<std::mutex> lock(lookup->mutex);
            if (HostAddresses* asker = lookup->asker)
                QMetaObject::invokeMethod(
                    asker, [asker, found] { asker->take(found); }, Qt::QueuedConnection);
        }).detach();
        m_lookup = lookup;
    } catch (const std::system_error&) { // no more threads: the next find() tries again
        --g_lookups;
    }
}

void HostAddresses::take(const Found& found)
{
    m_lookup.reset();
    if (!found.addresses.isEmpty()) {
        m_isDoubtful = false;
        m_addresses = found.addresses;
        if (m_addresses.removeOne(m_failed))
            m_addresses << m_failed;
    }
    const std::vector<Handler> waiting = std::move(m_waiting);
    m_waiting.clear();
    for (const Handler& handler : waiting)
        handler(found);
}

#include "metrics/metricsserver.h"

#include "connectors/bootclock.h"
#include "metrics/metricfamilies.h"

#include <QHostAddress>

#include <map>
#include <mutex>
#include <prometheus/collectable.h>
#include <prometheus/exposer.h>

namespace {

constexpr std::size_t kThreads = 2;
const char* const kThisMachine = "127.0.0.1";

struct Endpoint {
    QHostAddress host;
    int port = 0; // 0: not valid
};

Endpoint parseEndpoint(const QString& address)
{
    const int colon = address.lastIndexOf(QLatin1Char(':'));
    QString host = colon < 0 ? QString::fromLatin1(kThisMachine) : address.left(colon);
    if (host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']')))
        host = host.mid(1, host.size() - 2);
    return {QHostAddress(host), static_cast<int>(address.mid(colon + 1).toUShort())};
}

} // namespace

// What was last told of each device.
class MetricsServer::Page : public prometheus::Collectable
{
public:
    std::vector<prometheus::MetricFamily> Collect() const override
    {
        std::vector<DeviceMetrics> devices;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            for (const auto& [device, metrics] : m_devices)
                devices.push_back(metrics);
        }
        return metricFamilies(devices, bootClockMs());
    }

    void put(const Device* device, DeviceMetrics metrics)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_devices[device] = std::move(metrics);
    }

    // Of a device that put() was called for.
    void setState(const Device* device, LinkState link, int urgency)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        DeviceMetrics& metrics = m_devices[device];
        metrics.link = link;
        metrics.urgency = urgency;
    }

    void remove(const Device* device)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_devices.erase(device);
    }

private:
    mutable std::mutex m_mutex;
    std::map<const Device*, DeviceMetrics> m_devices;
};

struct MetricsServer::Server {
    explicit Server(const std::string& address)
        : exposer(address, kThreads)
    {}
    prometheus::Exposer exposer;
};

MetricsServer::MetricsServer(Fleet& fleet, QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
    , m_page(std::make_shared<Page>())
{
    for (int i = 0; i < fleet.count(); ++i)
        take(fleet.at(i));
    connect(&fleet, &Fleet::devicePolled, this, &MetricsServer::take);
    connect(&fleet, &Fleet::deviceAdded, this, [this](int index) { take(m_fleet.at(index)); });
    connect(&fleet, &Fleet::ticked, this, &MetricsServer::takeStates);
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this,
            [this](int index) { m_page->remove(m_fleet.at(index)); });
}

MetricsServer::~MetricsServer() = default;

QString MetricsServer::addressFault(const QString& address)
{
    const Endpoint endpoint = parseEndpoint(address);
    return address.isEmpty() || (!endpoint.host.isNull() && endpoint.port > 0)
               ? QString()
               : tr("is no numeric address with a port, like 127.0.0.1:9199");
}

QString MetricsServer::listen(const QString& address)
{
    m_server.reset();
    if (address.isEmpty())
        return {};
    if (const QString fault = addressFault(address); !fault.isEmpty())
        return tr("Metrics are not served: \"%1\" %2.").arg(address, fault);
    const Endpoint endpoint = parseEndpoint(address);
    const bool isV6 = endpoint.host.protocol() == QAbstractSocket::IPv6Protocol;
    const QString where = (isV6 ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2"))
                              .arg(endpoint.host.toString())
                              .arg(endpoint.port);
    try {
        auto server = std::make_unique<Server>(where.toStdString());
        server->exposer.RegisterCollectable(m_page);
        m_server = std::move(server);
    } catch (const std::exception&) {
        return tr("Metrics are not served: nothing can listen at %1. Another program may do so "
                  "already.")
            .arg(where);
    }
    return {};
}

int MetricsServer::port() const
{
    return m_server ? m_server->exposer.GetListeningPorts().front() : 0;
}

// Readings grow too old to be live between polls.
void MetricsServer::takeStates()
{
    for (int i = 0; i < m_fleet.count(); ++i) {
        const Device* device = m_fleet.at(i);
        m_page->setState(device, device->link(), static_cast<int>(device->condition().urgency));
    }
}

void MetricsServer::take(Device* device)
{
    DeviceMetrics metrics;
    metrics.device = device->name();
    metrics.link = device->link();
    metrics.urgency = static_cast<int>(device->condition().urgency);
    if (device->reading()) {
        metrics.reading = *device->reading();
        metrics.readAtBootMs = bootClockMs() - device->ageMs();
    }
    m_page->put(device, std::move(metrics));
}

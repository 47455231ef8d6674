#include "hostiledevice.h"

#include "support/nutanswers.h"

HostileDevice::HostileDevice(DeviceAddress::Scheme scheme)
{
    if (scheme == DeviceAddress::Scheme::Nut) {
        m_server = std::make_unique<LineServer>([this](const QByteArray& line) {
            const QByteArray good = orderlyNutAnswer(line);
            m_server->lines.clear(); // nobody reads them, and there are many
            // Some questions must be answered well, or the others are never asked.
            return m_hostile && m_mutator.below(2) ? spoil(good) : good;
        });
        m_server->closesAfterAnswers = true; // what is missing shows at once, not after a time-out
        return;
    }
    m_agent = std::make_unique<SnmpAgent>();
    m_agent->table.loadFile(QStringLiteral(TEST_DATA "/snmp/three-phase.txt"));
    // Most spoilt datagrams belong to no request and are dropped: many come for each, the good one
    // last, so that a poll goes on.
    m_agent->spoil = [this](const QByteArray& good) {
        constexpr int kForEach = 20;
        QByteArrayList datagrams;
        for (int i = 0; m_hostile && i < kForEach; ++i)
            datagrams << spoil(good);
        return datagrams << good;
    };
}

QByteArray HostileDevice::spoil(const QByteArray& good)
{
    ++m_spoilt;
    return m_mutator.spoil(good);
}

void HostileDevice::behave()
{
    m_hostile = false;
    if (m_server)
        m_server->closesAfterAnswers = false;
}

DeviceSettings HostileDevice::settings() const
{
    const QString address =
        m_server ? QStringLiteral("nut://127.0.0.1:%1/unit").arg(m_server->serverPort())
                 : QStringLiteral("snmp://public@127.0.0.1:%1").arg(m_agent->port());
    DeviceSettings settings;
    settings.address = *parseDeviceAddress(address).address;
    settings.timeout = 1;
    settings.retries = 0;
    return settings;
}

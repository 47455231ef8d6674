#include "connectors/snmp/snmppeer.h"

#include <algorithm>

using std::chrono::seconds;

SnmpPeer::SnmpPeer(const DeviceSettings& settings, SnmpEngine& engine)
    : m_settings(settings)
    , m_engine(engine)
    , m_addresses(settings.address.host, HostAddresses::askSystem, this)
    , m_pollLimit(this)
{
    m_settings.timeout = std::max(1, m_settings.timeout);
    m_settings.retries = qBound(0, m_settings.retries, 10);
    if (m_settings.address.port == 0)
        m_settings.address.port = DeviceAddress::kSnmpPort;
    m_pollLimit.setSingleShot(true);
    connect(&m_pollLimit, &QTimer::timeout, this, &SnmpPeer::onPollLimit);
}

QString SnmpPeer::peer() const
{
    const QString& host = m_settings.address.host;
    const bool v6 = host.contains(QLatin1Char(':'));
    return (v6 ? QStringLiteral("[%1]:%2") : QStringLiteral("%1:%2"))
        .arg(host)
        .arg(m_settings.address.port);
}

void SnmpPeer::poll()
{
    if (m_polling)
        return;
    m_polling = true;
    // All tries of a request, and once more the same for agents that need several requests.
    m_pollLimit.start(seconds(m_settings.timeout * (m_settings.retries + 1) + m_settings.timeout));
    m_addresses.find([this](const HostAddresses::Found& found) {
        if (!m_polling || m_poll) // the limit has ended this poll meanwhile
            return;
        if (found.error.isEmpty())
            return startPoll(found.addresses.first());
        PollResult failed;
        failed.state = LinkState::Lost;
        failed.message = found.error;
        endPoll(failed);
    });
}

void SnmpPeer::startPoll(const QString& address)
{
    SnmpPoll::Limits limits;
    limits.version = m_settings.address.snmpVersion;
    limits.timeout = seconds(m_settings.timeout);
    limits.retries = m_settings.retries;
    limits.peer = peer();
    m_poll = std::make_unique<SnmpPoll>(limits, m_memory);
    if (!m_exchange) {
        m_exchange = std::make_unique<SnmpExchange>(m_settings, m_engine);
        connect(m_exchange.get(), &SnmpExchange::ended, this,
                [this] { endPoll(m_poll->result()); });
    }
    m_address = address;
    m_exchange->start(m_poll.get(), address);
}

void SnmpPeer::onPollLimit()
{
    if (!m_polling)
        return;
    if (m_exchange)
        m_exchange->stop();
    if (m_poll)
        return endPoll(m_poll->result());
    PollResult late;
    late.state = LinkState::Lost;
    late.message = tr("The name server does not answer for %1").arg(m_settings.address.host);
    endPoll(late);
}

void SnmpPeer::endPoll(const PollResult& result)
{
    m_pollLimit.stop();
    m_poll.reset();
    m_polling = false;
    if (result.state == LinkState::Lost) {
        // Late answers go nowhere, and the next try takes the next address of the name, if any.
        if (m_exchange)
            m_exchange->stop();
        if (!m_address.isEmpty())
            m_addresses.fail(m_address);
    }
    emit polled(result);
}

void SnmpPeer::send(const UpsCommand& command)
{
    SnmpCommand::Limits limits;
    limits.timeout = seconds(m_settings.timeout);
    limits.retries = m_settings.retries;
    limits.shutdownWholeUps = m_settings.shutdownWholeUps;
    limits.account = m_settings.address.snmpVersion == 3
                         ? tr("user \"%1\"").arg(m_settings.address.user)
                         : tr("community");
    RunningCommand running{std::make_unique<SnmpCommand>(command, limits),
                           std::make_unique<SnmpExchange>(m_settings, m_engine)};
    SnmpCommand* dialogue = running.dialogue.get();
    SnmpExchange* exchange = running.exchange.get();
    connect(
        exchange, &SnmpExchange::ended, this,
        [this, dialogue] {
            const CommandResult result = dialogue->result();
            m_commands.erase(dialogue);
            emit commandFinished(result);
        },
        Qt::QueuedConnection);
    m_commands.emplace(dialogue, std::move(running));

    m_addresses.find([this, dialogue, exchange](const HostAddresses::Found& found) {
        if (found.error.isEmpty())
            return exchange->start(dialogue, found.addresses.first());
        CommandResult failed = dialogue->result();
        failed.message = found.error;
        m_commands.erase(dialogue);
        emit commandFinished(failed);
    });
}

#include "connectors/snmp/snmpexchange.h"

SnmpExchange::SnmpExchange(const DeviceSettings& settings, SnmpEngine& engine)
    : m_settings(settings)
    , m_session(settings, engine, [this](const SnmpReply& reply) {
        m_dialogue->take(reply);
        step();
    })
{
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, [this] { m_session.request(m_request); });
}

void SnmpExchange::start(SnmpDialogue* dialogue, const QString& numericAddress)
{
    if (m_address != numericAddress)
        m_session.close();
    m_address = numericAddress;
    m_session.setPeer(numericAddress, m_settings.address.port);
    m_dialogue = dialogue;
    step();
}

void SnmpExchange::stop()
{
    m_delay.stop();
    m_session.close();
    m_dialogue = nullptr;
}

void SnmpExchange::step()
{
    const std::optional<SnmpRequest> request = m_dialogue->next();
    if (!request) {
        m_dialogue = nullptr;
        emit ended();
        return;
    }
    m_request = *request;
    if (m_request.delay.count() > 0)
        m_delay.start(m_request.delay);
    else
        m_session.request(m_request);
}

#include "connectors/snmp/snmpconnector.h"

#include "connectors/snmp/snmpengine.h"
#include "connectors/snmp/snmppeer.h"

SnmpConnector::SnmpConnector(const DeviceSettings& settings, QObject* parent)
    : Connector(parent)
    , m_engine(SnmpEngine::instance())
    , m_device(new SnmpPeer(settings, *m_engine))
{
    qRegisterMetaType<PollResult>();
    qRegisterMetaType<CommandResult>();
    m_device->moveToThread(m_engine.get());
    connect(m_device, &SnmpPeer::polled, this, &Connector::polled, Qt::QueuedConnection);
    connect(m_device, &SnmpPeer::commandFinished, this, &Connector::commandFinished,
            Qt::QueuedConnection);
}

SnmpConnector::~SnmpConnector()
{
    m_device->deleteLater(); // on its own thread, when that gets round to it
}

void SnmpConnector::poll()
{
    QMetaObject::invokeMethod(
        m_device, [device = m_device] { device->poll(); }, Qt::QueuedConnection);
}

void SnmpConnector::send(const UpsCommand& command)
{
    QMetaObject::invokeMethod(
        m_device, [device = m_device, command] { device->send(command); }, Qt::QueuedConnection);
}

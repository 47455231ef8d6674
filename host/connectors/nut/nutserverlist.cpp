#include "connectors/nut/nutserverlist.h"

NutServerList::NutServerList(const DeviceSettings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_server(NutServer::of(settings))
{
    connect(m_server.get(), &NutServer::listed, this,
            [this](quint64 ticket, const QVector<NutUpsEntry>& devices, const QString& error) {
                if (ticket != m_ticket)
                    return;
                m_ticket = 0;
                emit finished(devices, error);
            });
}

void NutServerList::start()
{
    if (m_ticket == 0)
        m_ticket = m_server->list(m_settings);
}

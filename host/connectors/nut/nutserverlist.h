#ifndef NUTSERVERLIST_H
#define NUTSERVERLIST_H

// Asks a NUT server which devices it has.
// May touch: the server. Lives on the GUI thread; nothing here blocks.

#include "connectors/nut/nutserver.h"

class NutServerList : public QObject
{
    Q_OBJECT

public:
    // host, port, account and time-out count; the name of a device does not.
    explicit NutServerList(const DeviceSettings& settings, QObject* parent = nullptr);

    // Ends with exactly one finished(). While one is under way a further call is ignored.
    void start();

signals:
    // error: empty, or why there is no list, plain text for the operator.
    void finished(const QVector<NutUpsEntry>& devices, const QString& error);

private:
    const DeviceSettings m_settings;
    const std::shared_ptr<NutServer> m_server;
    quint64 m_ticket = 0; // 0: none under way
};

#endif // NUTSERVERLIST_H

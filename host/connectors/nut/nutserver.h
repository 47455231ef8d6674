#ifndef NUTSERVER_H
#define NUTSERVER_H

// One NUT server as its devices share it: one connection, one worker thread.
// May touch: its worker, through queued calls only. Lives on the GUI thread; nothing here blocks.

#include "connectors/nut/nutworker.h"

#include "connectors/devicesettings.h"

#include <QObject>

#include <memory>

class QThread;

class NutServer : public QObject
{
    Q_OBJECT

public:
    // The server of these settings; devices with the same host, port and account get the same one.
    static std::shared_ptr<NutServer> of(const DeviceSettings& settings);

    // What is under way is broken off and the thread ends by itself; nobody waits for it before
    // the program ends.
    ~NutServer() override;

    // Each returns the ticket that the one answer carries.
    quint64 poll(const DeviceSettings& settings);
    quint64 list(const DeviceSettings& settings);
    quint64 send(const DeviceSettings& settings, const UpsCommand& command);

signals:
    void polled(quint64 ticket, const PollResult& result);
    void listed(quint64 ticket, const QVector<NutUpsEntry>& devices, const QString& error);
    void commandFinished(quint64 ticket, const CommandResult& result);

private:
    explicit NutServer(const NutAccount& account);
    NutRequest request(const DeviceSettings& settings);

    std::unique_ptr<QThread> m_thread;
    NutWorker* m_worker; // deleted by its thread
    quint64 m_tickets = 0;
};

#endif // NUTSERVER_H

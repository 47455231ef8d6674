#ifndef METRICSSERVER_H
#define METRICSSERVER_H

// Serves the fleet's metrics to Prometheus at /metrics. Answers in threads of the library, from
// copies that are made on the fleet's thread: a slow reader holds up no poll.
// May touch: the fleet, the boot clock, the metrics library.

#include "fleet/fleet.h"

#include <QObject>

#include <memory>

class MetricsServer : public QObject
{
    Q_OBJECT

public:
    // The fleet must outlive the server.
    explicit MetricsServer(Fleet& fleet, QObject* parent = nullptr);
    ~MetricsServer() override;

    // address: "127.0.0.1:9199", a numeric address and a port, or a port alone for this machine
    // only; empty: serves nothing. Returns why it cannot; empty: it serves.
    QString listen(const QString& address);
    int port() const; // 0: serves nothing

    // What is wrong with such an address; empty: nothing.
    static QString addressFault(const QString& address);

private:
    class Page;
    struct Server;

    void take(Device* device);
    void takeStates();

    Fleet& m_fleet;
    std::shared_ptr<Page> m_page;
    std::unique_ptr<Server> m_server;
};

#endif // METRICSSERVER_H

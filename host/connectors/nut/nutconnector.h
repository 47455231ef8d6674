#ifndef NUTCONNECTOR_H
#define NUTCONNECTOR_H

// One device of a NUT server.
// May touch: the server that it shares with the server's other devices.

#include "connectors/connector.h"
#include "connectors/devicesettings.h"

#include <QSet>

#include <functional>
#include <memory>
#include <optional>

class NutServer;

// A poll ends within the time-out of the settings, whatever the server does, and connects anew
// whenever there is no connection. Commands need the account of the settings.
class NutConnector : public Connector
{
    Q_OBJECT

public:
    explicit NutConnector(const DeviceSettings& settings, QObject* parent = nullptr);

    void poll() override;
    void send(const UpsCommand& command) override;

protected:
    // Seconds that pass while the computer sleeps, too, and that nobody sets back.
    using Clock = std::function<double()>;
    void setClock(const Clock& clock) { m_clock = clock; }

private:
    void takePoll(quint64 ticket, PollResult result);
    void takeTimeOnBattery(UpsReading& reading);

    const DeviceSettings m_settings;
    const std::shared_ptr<NutServer> m_server;
    Clock m_clock;
    quint64 m_pollTicket = 0; // 0: none under way
    QSet<quint64> m_commandTickets;
    std::optional<double> m_onBatterySince; // s on the clock
};

#endif // NUTCONNECTOR_H

#ifndef SIMULATORCONNECTOR_H
#define SIMULATORCONNECTOR_H

// The built-in simulator as a device like any other: no network, no file, no thread.
// May touch: the scenario player and Qt Core.

#include "connectors/connector.h"
#include "connectors/devicesettings.h"
#include "connectors/simulator/scenarioplayer.h"

#include <functional>
#include <optional>

// The scenario is settings.address.scenario and begins with the first poll or command; from then on
// it runs in real time, whether polled or not (after more than an hour without a poll it continues
// as if an hour had passed). The same settings.seed and the same times give the same readings. An
// unknown scenario is refused, with the names of the known ones.
class SimulatorConnector : public Connector
{
    Q_OBJECT

public:
    explicit SimulatorConnector(const DeviceSettings& settings, QObject* parent = nullptr);

    // Answered from the event loop. A scenario whose device is silent answers Stale or Lost.
    void poll() override;

    // Takes effect at once, the result comes a moment later. A test is Done when it has begun, a
    // shutdown when its countdown has. NoAnswer, and no effect, while the device is silent.
    void send(const UpsCommand& command) override;

protected:
    using Clock = std::function<qint64()>; // ms, never runs backwards
    SimulatorConnector(const DeviceSettings& settings, Clock clock, QObject* parent = nullptr);

private:
    void catchUp();
    PollResult pollResult();
    CommandResult carryOut(const UpsCommand& command);

    Clock m_clock;
    std::optional<ScenarioPlayer> m_player; // empty: no such scenario
    QString m_refusal;
    std::optional<qint64> m_seen; // the clock when last looked at
    bool m_polling = false;
};

#endif // SIMULATORCONNECTOR_H

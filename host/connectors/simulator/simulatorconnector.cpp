#include "connectors/simulator/simulatorconnector.h"

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kCommandTime = 300;              // ms until a command's result is there
constexpr qint64 kMaxCatchUp = 60 * 60 * 1000; // ms that one look at the clock may simulate

std::function<qint64()> monotonicClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

} // namespace

SimulatorConnector::SimulatorConnector(const DeviceSettings& settings, QObject* parent)
    : SimulatorConnector(settings, monotonicClock(), parent)
{}

SimulatorConnector::SimulatorConnector(const DeviceSettings& settings, Clock clock, QObject* parent)
    : Connector(parent)
    , m_clock(std::move(clock))
{
    const QString name = settings.address.scenario;
    if (const auto scenario = findScenario(name))
        m_player.emplace(*scenario, settings.seed);
    else
        m_refusal = unknownScenarioText(name);
}

void SimulatorConnector::poll()
{
    if (m_polling)
        return;
    m_polling = true;
    QTimer::singleShot(0, this, [this] {
        const PollResult result = pollResult();
        m_polling = false; // before the signal: who hears it may poll again
        emit polled(result);
    });
}

void SimulatorConnector::send(const UpsCommand& command)
{
    const CommandResult result = carryOut(command);
    QTimer::singleShot(kCommandTime, this, [this, result] { emit commandFinished(result); });
}

void SimulatorConnector::catchUp()
{
    const qint64 now = m_clock();
    m_player->advance(std::min(now - m_seen.value_or(now), kMaxCatchUp));
    m_seen = now;
}

PollResult SimulatorConnector::pollResult()
{
    PollResult result;
    if (!m_player) {
        result.state = LinkState::Refused;
        result.message = m_refusal;
        return result;
    }
    catchUp();
    result.state = m_player->link();
    if (result.state == LinkState::Live)
        result.reading = m_player->reading();
    else if (result.state == LinkState::Stale)
        result.message = tr("The simulator answers, the simulated UPS behind it is silent");
    else
        result.message = tr("The simulated UPS does not answer");
    return result;
}

CommandResult SimulatorConnector::carryOut(const UpsCommand& command)
{
    if (!m_player)
        return {command.id, CommandOutcome::Refused, m_refusal};
    catchUp();
    if (m_player->link() != LinkState::Live)
        return {command.id, CommandOutcome::NoAnswer, tr("The simulated UPS does not answer")};
    const SimulatedUps::Reply reply = m_player->ups().carryOut(command);
    return {command.id, reply.accepted ? CommandOutcome::Done : CommandOutcome::Refused,
            reply.message};
}

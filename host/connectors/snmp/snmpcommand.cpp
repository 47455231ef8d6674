#include "connectors/snmp/snmpcommand.h"

#include "connectors/snmp/upsmib.h"

#include "reading/sanitize.h"
#include "reading/upsreading.h"

using std::chrono::milliseconds;
using namespace UpsMib;

namespace {

constexpr milliseconds kBetweenLooks{500};
constexpr int kMostRounds = 30; // 15 s until a command that was accepted must show an effect
constexpr int kMostRoundsOfWakeUp = 120; // a UPS takes its time to come on
constexpr int kMostLockTries = 3;
constexpr int kLongestReboot = 300;    // s, limit of upsRebootWithDuration
constexpr int kCountdownTolerance = 2; // s by which a countdown that goes on may seem to jump

bool isOn(std::optional<qint64> source)
{
    return source && *source >= qint64(OutputSource::Utility) &&
           *source <= qint64(OutputSource::Reducer);
}

bool isOff(std::optional<qint64> source)
{
    return source == qint64(OutputSource::None);
}

enum class Refusal { Access, Value, Failed };

Refusal refusalOf(int errorStatus)
{
    switch (errorStatus) {
    case SnmpNoSuchName:
    case SnmpReadOnly:
    case SnmpNoAccess:
    case SnmpNoCreation:
    case SnmpAuthorizationError:
    case SnmpNotWritable:
        return Refusal::Access;
    case SnmpBadValue:
    case SnmpWrongType:
    case SnmpWrongType + 1: // wrongLength
    case SnmpWrongType + 2: // wrongEncoding
    case SnmpWrongValue:
        return Refusal::Value;
    default:
        return Refusal::Failed;
    }
}

quint32 testOf(CommandKind kind)
{
    if (kind == CommandKind::CancelTest)
        return AbortTest;
    return kind == CommandKind::SelfTest ? QuickBatteryTest : DeepBatteryCalibration;
}

} // namespace

SnmpCommand::SnmpCommand(const UpsCommand& command, const Limits& limits)
    : m_command(command)
    , m_limits(limits)
{
    m_result.id = command.id;
    m_result.outcome = CommandOutcome::NoAnswer;
    m_result.message = tr("The agent does not answer; nothing was set.");
    if (isTest())
        look({testResultsSummary, testSpinLock, testId, testStartTime});
    else
        look({outputSource, shutdownType, shutdownAfterDelay, startupAfterDelay,
              rebootWithDuration});
}

bool SnmpCommand::isTest() const
{
    return m_command.kind == CommandKind::SelfTest ||
           m_command.kind == CommandKind::DischargeTest ||
           m_command.kind == CommandKind::CancelTest;
}

void SnmpCommand::look(const std::vector<SnmpOid>& objects, milliseconds delay)
{
    m_looks.assign(objects.begin(), objects.end());
    m_delay = delay;
}

bool SnmpCommand::seen(const SnmpOid& object) const
{
    const auto found = m_seen.find(object);
    return found != m_seen.end() && found->second.type != SnmpValue::Type::Absent &&
           found->second.type != SnmpValue::Type::Null;
}

std::optional<qint64> SnmpCommand::number(const SnmpOid& object) const
{
    const auto found = m_seen.find(object);
    return found == m_seen.end() ? std::nullopt : found->second.raw();
}

std::optional<qint64> SnmpCommand::numberBefore(const SnmpOid& object) const
{
    const auto found = m_before.find(object);
    return found == m_before.end() ? std::nullopt : found->second.raw();
}

std::optional<SnmpRequest> SnmpCommand::next()
{
    if (m_phase == Phase::Done)
        return {};
    SnmpRequest request;
    request.timeout = m_limits.timeout;
    if (m_phase == Phase::Set || m_phase == Phase::Undo) {
        request.kind = SnmpRequest::Kind::Set;
        request.variables = m_phase == Phase::Set ? m_settings.front() : m_undo;
        return request;
    }
    // One object at a time: version 1 and weak agents refuse the lot for one that is missing.
    request.retries = m_limits.retries;
    request.delay = m_delay;
    m_sinceBefore += m_delay;
    request.variables = {{m_looks.front(), SnmpValue::null()}};
    m_delay = {};
    return request;
}

void SnmpCommand::take(const SnmpReply& reply)
{
    m_sinceBefore = m_phase == Phase::Before ? milliseconds(0) : m_sinceBefore + reply.elapsed;
    if (reply.kind == SnmpReply::Kind::Refusal && m_phase != Phase::Undo)
        takeRefusal(reply.message);
    else if (m_phase == Phase::Set)
        takeSet(reply);
    else if (m_phase == Phase::Undo)
        m_phase = Phase::Done; // the result stands already
    else
        takeLook(reply);
}

// An agent that turns away the user only now has taken what was set before.
void SnmpCommand::takeRefusal(const QString& cause)
{
    if (m_phase == Phase::After)
        return finish(CommandOutcome::Unknown,
                      tr("%1. The command was sent before; look at the readings before sending it "
                         "again.")
                          .arg(cause));
    finish(CommandOutcome::Refused, cause);
    if (!m_undo.empty())
        m_phase = Phase::Undo;
}

void SnmpCommand::takeLook(const SnmpReply& reply)
{
    if (reply.kind == SnmpReply::Kind::Silence) {
        if (m_phase == Phase::Before)
            finish(CommandOutcome::NoAnswer, m_result.message);
        else
            finish(CommandOutcome::Unknown,
                   tr("The agent fell silent after the command was sent; it is not known whether "
                      "the device carried it out. It was not sent again."));
        return;
    }
    const SnmpOid object = m_looks.front();
    m_looks.pop_front();
    const bool answered = reply.errorStatus == SnmpNoError && !reply.variables.empty() &&
                          reply.variables.front().oid == object;
    m_seen[object] = answered ? reply.variables.front().value : SnmpValue::absent();
    if (!m_looks.empty())
        return;
    if (m_phase == Phase::After)
        follow();
    else if (isTest())
        prepareTest();
    else
        prepareControl();
}

void SnmpCommand::set(const SnmpOid& object, int value)
{
    m_settings.push_back({{object, SnmpValue::number(value)}});
}

void SnmpCommand::prepareTest()
{
    const bool inProgress = number(testResultsSummary) == qint64(InProgress);
    const bool cancel = m_command.kind == CommandKind::CancelTest;
    if (!cancel && inProgress)
        return finish(CommandOutcome::Refused, tr("A test is already in progress."));
    if (cancel && seen(testResultsSummary) && !inProgress)
        return finish(CommandOutcome::Refused, tr("No test is in progress."));
    if (!seen(testResultsSummary) && !seen(testSpinLock) && !seen(testId))
        return finish(CommandOutcome::NotOffered, tr("The device has no test objects."));

    m_before = m_seen;
    std::vector<SnmpVariable> setting;
    // The lock and the test go out together, so that of two who start a test only one succeeds.
    if (const std::optional<qint64> lock = number(testSpinLock))
        setting.push_back({testSpinLock, SnmpValue::number(*lock)});
    setting.push_back(
        {testId, SnmpValue::objectId(wellKnownTests + SnmpOid{testOf(m_command.kind)})});
    m_settings = {setting};
    m_phase = Phase::Set;
}

// False where it cannot be; the command is over then.
bool SnmpCommand::planShutdown()
{
    const int wantedType = m_limits.shutdownWholeUps ? ShutdownSystem : ShutdownOutput;
    const int standby = m_command.standbyMinutes * 60;
    m_countdown = shutdownAfterDelay;
    if (m_command.kind == CommandKind::Standby) {
        // The two countdowns run at once: the later end must be the startup.
        if (m_command.shutdownDelay >= standby) {
            finish(CommandOutcome::Refused,
                   tr("The shutdown delay of %1 s is not shorter than the standby.")
                       .arg(m_command.shutdownDelay));
            return false;
        }
        set(startupAfterDelay, standby);
    } else if (seen(shutdownType) && number(shutdownType) != qint64(wantedType)) {
        set(shutdownType, wantedType);
    }
    set(shutdownAfterDelay, m_command.shutdownDelay);
    return true;
}

void SnmpCommand::prepareControl()
{
    const int standby = m_command.standbyMinutes * 60;
    const bool reboot = m_command.kind == CommandKind::Restart ||
                        (m_command.kind == CommandKind::Standby && standby <= kLongestReboot &&
                         seen(rebootWithDuration));

    if (m_command.kind == CommandKind::WakeUp) {
        m_countdown = startupAfterDelay;
        set(startupAfterDelay, 0);
    } else if (reboot) {
        m_countdown = rebootWithDuration;
        set(rebootWithDuration,
            m_command.kind == CommandKind::Restart ? m_command.restartDuration : standby);
    } else if (!planShutdown()) {
        return;
    }
    m_wanted = static_cast<int>(m_settings.back().front().value.integer);
    for (const std::vector<SnmpVariable>& setting : m_settings)
        if (!seen(setting.front().oid))
            return finish(CommandOutcome::NotOffered,
                          tr("The device has no object for this command (%1).")
                              .arg(toText(setting.front().oid)));
    m_before = m_seen;
    m_phase = Phase::Set;
}

void SnmpCommand::takeSet(const SnmpReply& reply)
{
    const std::vector<SnmpVariable> sent = m_settings.front();
    if (reply.kind == SnmpReply::Kind::Answer && reply.errorStatus != SnmpNoError) {
        const bool locked = sent.size() > 1 && reply.errorIndex == 1 &&
                            refusalOf(reply.errorStatus) != Refusal::Access;
        if (locked && ++m_lockTries < kMostLockTries) {
            m_phase = Phase::Before; // someone else was faster
            return look({testResultsSummary, testSpinLock});
        }
        const std::size_t index = static_cast<std::size_t>(std::max(reply.errorIndex, 1));
        return refuse(reply.errorStatus, sent[std::min(index, sent.size()) - 1].oid);
    }
    // Some agents report no error and say in the value that there is nothing to set.
    for (const SnmpVariable& variable : reply.variables)
        if (variable.value.type == SnmpValue::Type::Absent)
            return refuse(SnmpNotWritable, variable.oid);

    m_unclear = m_unclear || reply.kind == SnmpReply::Kind::Silence;
    m_settings.pop_front();
    // Without an answer to the first step the second is not sent: it must not work alone.
    if (!m_settings.empty() && !m_unclear) {
        if (sent.front().oid == startupAfterDelay)
            m_undo = {{startupAfterDelay, SnmpValue::number(-1)}};
        return;
    }
    if (!m_settings.empty())
        return finish(CommandOutcome::Unknown,
                      tr("No answer to the first step of the command; the shutdown was not sent."));
    m_phase = Phase::After;
    if (isTest())
        look({testResultsSummary, testStartTime, testResultsDetail});
    else
        look({m_countdown, outputSource});
}

void SnmpCommand::follow()
{
    if (isTest() ? testShowsResult() : controlShowsResult())
        return;
    const bool wakesUp = m_command.kind == CommandKind::WakeUp;
    if (++m_rounds >= (wakesUp ? kMostRoundsOfWakeUp : kMostRounds) ||
        (isTest() && !seen(testResultsSummary)))
        return finishUnknown();
    if (isTest())
        look({testResultsSummary, testStartTime, testResultsDetail}, kBetweenLooks);
    else
        look({m_countdown, outputSource}, kBetweenLooks);
}

void SnmpCommand::finishUnknown()
{
    const std::optional<qint64> before = numberBefore(outputSource);
    const bool wakesUp = m_command.kind == CommandKind::WakeUp;
    if (m_unclear)
        finish(CommandOutcome::Unknown,
               tr("No answer to the command, and the device shows no effect of it. "
                  "It was not sent again."));
    else if (!isTest() && (wakesUp ? isOn(before) : isOff(before)))
        finish(CommandOutcome::Unknown,
               (wakesUp
                    ? tr("The agent accepted the command, but the output was on before: nothing "
                         "shows whether the device followed it.")
                    : tr("The agent accepted the command, but the output was off before: "
                         "nothing shows whether the device followed it.")));
    else
        finish(CommandOutcome::Unknown,
               tr("The agent accepted the command, but the device shows no effect of it."));
}

bool SnmpCommand::testShowsResult()
{
    const std::optional<qint64> result = number(testResultsSummary);
    if (!result)
        return false;
    const bool inProgress = *result == InProgress;
    if (m_command.kind == CommandKind::CancelTest) {
        if (numberBefore(testResultsSummary) != qint64(InProgress))
            return false;
        if (!inProgress)
            finish(CommandOutcome::Done, tr("The test has ended."));
        return !inProgress;
    }
    if (inProgress) {
        finish(CommandOutcome::Done, tr("The test has begun."));
        return true;
    }
    // A short test may have begun and ended between two looks.
    return (result != numberBefore(testResultsSummary) ||
            number(testStartTime) != numberBefore(testStartTime)) &&
           endedTestShowsResult(*result);
}

bool SnmpCommand::endedTestShowsResult(qint64 result)
{
    const QString detail = cleanDeviceText(m_seen[testResultsDetail].octets);
    if (result == DonePass || result == DoneWarning)
        finish(CommandOutcome::Done, tr("The test has ended. %1").arg(detail).trimmed());
    else if (result == DoneError)
        finish(CommandOutcome::Refused, tr("The test failed. %1").arg(detail).trimmed());
    else if (result == Aborted)
        finish(CommandOutcome::Refused, tr("The test was aborted. %1").arg(detail).trimmed());
    else
        return false;
    return true;
}

bool SnmpCommand::controlShowsResult()
{
    const bool comesOn =
        m_command.kind == CommandKind::Restart && isOff(numberBefore(outputSource));
    if (outputHasSwitched())
        finish(CommandOutcome::Done,
               isOn(number(outputSource)) ? tr("The output is on.") : tr("The output is off."));
    else if (!comesOn && countdownHasBegun())
        finish(CommandOutcome::Done,
               tr("The countdown is running, %1 s left.").arg(*number(m_countdown)));
    else
        return false;
    return true;
}

// An output that was off before a restart has to come on; a countdown alone does not show it.
bool SnmpCommand::outputHasSwitched() const
{
    const std::optional<qint64> before = numberBefore(outputSource);
    const std::optional<qint64> now = number(outputSource);
    const bool wantedOn = m_command.kind == CommandKind::WakeUp ||
                          (m_command.kind == CommandKind::Restart && isOff(before));
    return before && (wantedOn ? isOn(now) && !isOn(before) : isOff(now) && !isOff(before));
}

// -1 reads as "no countdown", and so does 0 in many agents. One that ran before must have jumped to
// be ours.
bool SnmpCommand::countdownHasBegun() const
{
    const std::optional<qint64> now = number(m_countdown);
    const qint64 before = numberBefore(m_countdown).value_or(-1);
    if (!now || *now <= 0 || *now > m_wanted || *now == before)
        return false;
    const qint64 goneOn = before - m_sinceBefore / std::chrono::seconds(1);
    return before <= 0 || std::abs(*now - goneOn) > kCountdownTolerance;
}

void SnmpCommand::refuse(int errorStatus, const SnmpOid& object)
{
    const Refusal refusal = refusalOf(errorStatus);
    const QString name = toText(object);
    if (refusal == Refusal::Access && !seen(object))
        finish(CommandOutcome::NotOffered,
               tr("The device does not offer this command (%1 cannot be set).").arg(name));
    else if (refusal == Refusal::Access)
        finish(CommandOutcome::Refused,
               tr("The agent does not let %1 be set: the %2 needs write access.")
                   .arg(name, m_limits.account));
    else if (refusal == Refusal::Value)
        finish(CommandOutcome::Refused,
               tr("The device does not accept the value for %1.").arg(name));
    else
        finish(
            CommandOutcome::Refused,
            tr("The device cannot do this now (SNMP error %1 at %2).").arg(errorStatus).arg(name));
    if (!m_undo.empty())
        m_phase = Phase::Undo; // a startup without its shutdown must not stay pending
}

void SnmpCommand::finish(CommandOutcome outcome, const QString& message)
{
    m_phase = Phase::Done;
    m_result.outcome = outcome;
    m_result.message = message;
}

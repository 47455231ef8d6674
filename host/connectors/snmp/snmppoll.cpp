#include "connectors/snmp/snmppoll.h"

#include "connectors/snmp/snmpreading.h"
#include "connectors/snmp/upsmib.h"

#include <algorithm>

using std::chrono::milliseconds;

namespace {

constexpr int kRowsPerBulk = 4;          // three lines and the object behind them
constexpr std::size_t kMostColumns = 13; // of one request: all that a poll walks
constexpr int kMostRows = 64;            // of one column, far above what a UPS lists
constexpr int kPollsToRemember = 60;

// Asked for in every poll: they tell the power path, and an agent may lack them while it starts.
bool isEssential(const SnmpOid& oid)
{
    return oid == UpsMib::outputSource || oid == UpsMib::batteryStatus;
}

double seconds(milliseconds time)
{
    return std::chrono::duration<double>(time).count();
}

} // namespace

SnmpPoll::SnmpPoll(const Limits& limits, SnmpMemory& memory)
    : m_limits(limits)
    , m_memory(memory)
    , m_wasProven(memory.proven)
    , m_phase(memory.proven ? Phase::Scalars : Phase::Probe)
    , m_most(static_cast<std::size_t>(memory.objectsPerRequest))
{
    if (m_memory.pollsUntilAskedAgain-- <= 0) {
        m_memory.missing.clear();
        m_memory.pollsUntilAskedAgain = kPollsToRemember;
    }
    for (const SnmpOid& oid : polledScalars())
        if (m_memory.missing.count(oid) == 0)
            m_scalars.push_back(oid);
    for (const SnmpOid& root : polledColumns())
        m_columns.push_back({root, root, 0});
}

bool SnmpPoll::usesBulk() const
{
    return m_limits.version != 1 && m_memory.bulk && m_most > 1;
}

// How long to wait for the first answer to many objects, of an agent that has just answered one:
// long enough for a slow agent, short enough that a poll is left when it stays silent.
milliseconds SnmpPoll::trialTimeout() const
{
    constexpr int kTimesAsLong = 25;
    return std::min(m_limits.timeout, std::max(m_limits.timeout / 4, kTimesAsLong * m_roundTrip));
}

std::optional<SnmpRequest> SnmpPoll::next()
{
    if (m_phase == Phase::Scalars && m_scalars.empty())
        m_phase = Phase::Columns;
    if (m_phase == Phase::Columns && m_columns.empty())
        finishWithValues();
    if (m_phase == Phase::Done)
        return {};

    SnmpRequest request = nextQuestion();
    const bool trial = !m_wasProven && m_phase != Phase::Probe &&
                       (m_asked > 1 || request.kind == SnmpRequest::Kind::GetBulk);
    if (trial) {
        request.timeout = trialTimeout();
        request.retries = 1;
    }
    return request;
}

SnmpRequest SnmpPoll::nextQuestion()
{
    SnmpRequest request;
    request.timeout = m_limits.timeout;
    request.retries = m_limits.retries;
    if (m_phase == Phase::Columns) {
        m_asked = std::min({m_most, kMostColumns, m_columns.size()});
        request.kind = usesBulk() ? SnmpRequest::Kind::GetBulk : SnmpRequest::Kind::GetNext;
        request.repetitions = kRowsPerBulk;
        for (std::size_t i = 0; i < m_asked; ++i)
            request.variables.push_back({m_columns[i].last, SnmpValue::null()});
    } else {
        m_asked = m_phase == Phase::Probe ? 1 : std::min(m_most, m_scalars.size());
        for (std::size_t i = 0; i < m_asked; ++i)
            request.variables.push_back({m_scalars[i], SnmpValue::null()});
    }
    return request;
}

void SnmpPoll::take(const SnmpReply& reply)
{
    if (reply.kind == SnmpReply::Kind::Refusal)
        return finish(LinkState::Refused, reply.message);
    if (reply.kind == SnmpReply::Kind::Silence)
        return takeSilence(reply.message);

    const bool probe = m_phase == Phase::Probe;
    m_roundTrip = std::max(m_roundTrip, reply.elapsed);
    if (probe)
        m_phase = Phase::Scalars;
    if (reply.errorStatus != SnmpNoError)
        takeError(reply);
    else if (m_phase == Phase::Scalars)
        takeScalars(reply.variables);
    else
        takeColumns(reply.variables);
}

void SnmpPoll::takeSilence(const QString& message)
{
    const bool single = m_asked == 1 && !(m_phase == Phase::Columns && usesBulk());
    if (m_wasProven || single || m_phase == Phase::Probe) {
        if (!m_wasProven) // what it seemed to lack may just have been this silence
            m_memory = SnmpMemory{};
        m_memory.proven = false;
        return finish(LinkState::Lost, message);
    }
    // It answers single questions: this one was too much for it.
    if (m_phase == Phase::Columns && usesBulk())
        m_memory.bulk = false;
    else
        askForFewer(1);
}

void SnmpPoll::takeError(const SnmpReply& reply)
{
    const std::size_t index = static_cast<std::size_t>(std::max(reply.errorIndex, 0));
    m_denied = m_denied || reply.errorStatus == SnmpAuthorizationError ||
               reply.errorStatus == SnmpNoAccess;
    if (reply.errorStatus == SnmpTooBig && m_phase == Phase::Columns && usesBulk())
        m_memory.bulk = false;
    else if (reply.errorStatus == SnmpTooBig && m_asked > 1)
        askForFewer(m_asked / 2);
    else if (m_asked == 1)
        dropAsked(0, reply.errorStatus == SnmpNoSuchName);
    else if (index >= 1 && index <= m_asked)
        dropAsked(index - 1, reply.errorStatus == SnmpNoSuchName);
    else
        m_most = std::max<std::size_t>(1, m_asked / 2); // it does not say which: narrow it down
}

void SnmpPoll::dropAsked(std::size_t position, bool remember)
{
    if (m_phase == Phase::Columns) {
        m_columns.erase(m_columns.begin() + static_cast<std::ptrdiff_t>(position));
        return;
    }
    const auto dropped = m_scalars.begin() + static_cast<std::ptrdiff_t>(position);
    if (remember && !isEssential(*dropped))
        m_memory.missing.insert(*dropped);
    m_scalars.erase(dropped);
}

void SnmpPoll::askForFewer(std::size_t objects)
{
    m_most = std::max<std::size_t>(1, objects);
    m_memory.objectsPerRequest = static_cast<int>(m_most);
}

// Some agents answer only the first objects of a request; the others are asked for again.
void SnmpPoll::takeScalars(const std::vector<SnmpVariable>& variables)
{
    std::deque<SnmpOid> unanswered(m_scalars.begin(),
                                   m_scalars.begin() + static_cast<std::ptrdiff_t>(m_asked));
    for (const SnmpVariable& variable : variables) {
        const auto asked = std::find(unanswered.begin(), unanswered.end(), variable.oid);
        if (asked == unanswered.end())
            continue;
        m_values[variable.oid] = variable.value;
        unanswered.erase(asked);
    }
    m_scalars.erase(m_scalars.begin(), m_scalars.begin() + static_cast<std::ptrdiff_t>(m_asked));
    if (m_asked == 1 || unanswered.empty())
        return;
    askForFewer(m_asked - unanswered.size());
    m_scalars.insert(m_scalars.begin(), unanswered.begin(), unanswered.end());
}

// The answer lists row after row, each with one variable of every column that was asked for.
void SnmpPoll::takeColumns(const std::vector<SnmpVariable>& variables)
{
    std::vector<bool> walking(m_asked, true);
    for (std::size_t i = 0; i < variables.size(); ++i) {
        const std::size_t k = i % m_asked;
        if (walking[k])
            walking[k] = advance(m_columns[k], variables[i]);
    }
    const std::size_t answered = std::min(m_asked, variables.size());
    if (answered < m_asked && m_asked > 1)
        askForFewer(answered);
    else if (answered == 0)
        walking[0] = false;

    std::size_t position = 0;
    for (const bool goesOn : walking) {
        if (goesOn)
            ++position;
        else
            dropAsked(position, false);
    }
}

// False where the column ends: behind its subtree, or where the agent goes in circles.
bool SnmpPoll::advance(Column& column, const SnmpVariable& variable)
{
    if (variable.value.type == SnmpValue::Type::Absent || !isBelow(variable.oid, column.root) ||
        !(column.last < variable.oid))
        return false;
    m_values[variable.oid] = variable.value;
    column.last = variable.oid;
    return ++column.rows < kMostRows;
}

void SnmpPoll::finishWithValues()
{
    const auto upTime = m_values.find(UpsMib::sysUpTime);
    const std::optional<qint64> now =
        upTime == m_values.end() ? std::nullopt : upTime->second.raw();
    // An agent that has restarted may have changed, or have had less to say while it started.
    const bool restarted = now && m_memory.upTime && *now < *m_memory.upTime;
    if (restarted)
        m_memory = SnmpMemory{};
    m_memory.upTime = now;
    m_memory.proven = !restarted;

    if (hasUpsObjects(m_values))
        finishWithReading();
    else
        finish(LinkState::Refused,
               tr("not a UPS: %1 answers SNMP but has no UPS-MIB objects").arg(m_limits.peer));
}

// A card that has lost its UPS goes on telling what it last heard; nothing of that is news.
void SnmpPoll::finishWithReading()
{
    m_reading = readingFromSnmp(m_values);
    if (!m_reading.alarms.contains(Alarm::CommunicationsLost))
        return finish(LinkState::Live);
    finish(LinkState::Stale,
           tr("The agent at %1 answers, but has lost contact with its UPS; what it repeats is "
              "not taken for new.")
               .arg(m_limits.peer));
}

void SnmpPoll::finish(LinkState state, const QString& message)
{
    m_phase = Phase::Done;
    m_state = state;
    m_message = message;
}

PollResult SnmpPoll::result() const
{
    PollResult result;
    result.state = m_state;
    result.message = m_message;
    if (m_state == LinkState::Live)
        result.reading = m_reading;
    if (m_state != LinkState::Lost || !m_message.isEmpty())
        return result;

    const double waited = seconds(m_limits.timeout) * (m_limits.retries + 1);
    if (!m_values.empty())
        result.message =
            tr("%1 stopped answering, or answers too slowly: a poll did not end within "
               "%2 s")
                .arg(m_limits.peer)
                .arg(waited);
    else if (m_limits.version == 3)
        result.message = tr("Silent for %1 s: wrong user or context, an agent without SNMPv3, "
                            "or nothing at %2")
                             .arg(waited)
                             .arg(m_limits.peer);
    else
        result.message = tr("Silent for %1 s: wrong community, an agent without this SNMP "
                            "version, or nothing at %2")
                             .arg(waited)
                             .arg(m_limits.peer);
    return result;
}

#include "history/recorder.h"

#include "history/devicefacts.h"
#include "reading/sanitize.h"

#include <QTimer>

#include <algorithm>
#include <iterator>

namespace {

constexpr int kAskAgainMs = 500;
constexpr qint64 kClockJumpMs = 5000;
constexpr qint64 kMsPerSecond = 1000;
constexpr double kLongestAge = 10 * 365 * 86400.0; // s; what a device says beyond it is not true

// By the numbers of EventKind.
constexpr JournalKind kEventKinds[] = {JournalKind::Command, JournalKind::Operator,
                                       JournalKind::Configuration, JournalKind::Desk};
static_assert(std::size(kEventKinds) == static_cast<int>(EventKind::Fault) + 1);

// "refused: not now", or what there is of it.
QString outcomeText(const DeskEvent& event)
{
    QStringList words{event.outcome, event.message};
    words.removeAll(QString());
    return words.join(QStringLiteral(": "));
}

} // namespace

Recorder::Recorder(Fleet& fleet, EventLog& log, HistoryWriter& writer, HistoryReader& reader,
                   IsRecorded isRecorded, const FleetClock& clock, QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
    , m_log(log)
    , m_writer(writer)
    , m_reader(reader)
    , m_isRecorded(std::move(isRecorded))
    , m_clock(clock)
    , m_startedBootMs(clock.bootMs())
    , m_clockOffsetMs(nowMs() - clock.bootMs())
{
    connect(&fleet, &Fleet::devicePolled, this, &Recorder::record);
    connect(&fleet, &Fleet::ticked, this, &Recorder::noteClock);
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this, [this](int index) {
        const QString name = storedName(*m_fleet.at(index));
        // A device that was changed is there again at once.
        QTimer::singleShot(0, this, [this, name] { noteRemoval(name); });
    });
    connect(&log, &EventLog::appended, this, &Recorder::noteEvent);
    connect(&log, &EventLog::changed, this, &Recorder::noteOutcome);
    connect(&writer, &HistoryWriter::storeFault, this, &Recorder::noteFault);
    connect(&writer, &HistoryWriter::storeRecovered, this, &Recorder::noteRecovery);
}

Recorder::~Recorder()
{
    if (m_isFollowing)
        begin(moment(JournalKind::Desk, Urgency::Normal, tr("Recording ended")));
}

qint64 Recorder::nowMs() const
{
    return m_clock.now().toMSecsSinceEpoch();
}

// What an earlier run left

void Recorder::start()
{
    begin(moment(JournalKind::Desk, Urgency::Normal, tr("Recording began")));
    askForStored();
}

Recorder::Stored Recorder::readStored(HistoryQueries& queries, const QString& site)
{
    Stored stored{queries.openEntries(site), queries.lastSeen(site)};
    const int charge = quantityIndex(QStringLiteral("battery.charge"));
    for (JournalEntry& entry : stored.open) {
        const auto device = queries.device(entry.device, site);
        if (entry.kind != JournalKind::Outage || !device || !stored.lastSeen.contains(entry.device))
            continue;
        const auto series = queries.series(
            device->id, {entry.onsetMs, stored.lastSeen.value(entry.device)}, 1000, {charge});
        for (const ValueRange& range : series.values.at(0))
            if (range.isKnown())
                entry.lowestCharge =
                    std::min(entry.lowestCharge.value_or(range.least), range.least);
    }
    return stored;
}

void Recorder::askForStored()
{
    if (!m_isFollowing && m_clock.bootMs() - m_startedBootMs > kPatienceMs)
        m_isFollowing = true;
    const QString site = m_writer.options().site;
    m_reader.ask<Stored>(
        this, [site](HistoryQueries& queries) { return readStored(queries, site); },
        [this](const Stored& stored, const QString& error) {
            if (error.isEmpty())
                takeStored(stored);
            else
                QTimer::singleShot(kAskAgainMs, this, &Recorder::askForStored);
        });
}

void Recorder::takeStored(const Stored& stored)
{
    const bool isLate = std::exchange(m_isFollowing, true);
    for (const JournalEntry& entry : stored.open) {
        const auto seen = stored.lastSeen.constFind(entry.device);
        const auto lastSeen =
            seen == stored.lastSeen.cend() ? std::nullopt : std::optional<qint64>(*seen);
        if (entry.key == (m_fault ? m_fault->key : QString()))
            continue;
        DeviceState& state = m_states[entry.device];
        const auto isOurs = [&](const Open& open) { return open.entry.key == entry.key; };
        if (std::any_of(state.open.cbegin(), state.open.cend(), isOurs))
            continue;
        const bool isTwice = state.open.contains(entry.fact);
        if (isLate || isTwice || entry.device.isEmpty() || entry.fact.isEmpty()) {
            endStored(entry, lastSeen);
            continue;
        }
        state.lastSeenMs = lastSeen;
        state.open.insert(entry.fact, {entry, true});
    }
    for (int i = 0; i < m_fleet.count(); ++i)
        observe(m_fleet.at(i));
}

void Recorder::endStored(const JournalEntry& entry, std::optional<qint64> lastSeenMs)
{
    m_writer.end(entry.key, std::max(entry.onsetMs, lastSeenMs.value_or(entry.onsetMs)),
                 tr("Ended while nothing was recorded."), entry.lowestCharge);
}

// Devices

void Recorder::record(Device* device)
{
    if (!m_isRecorded(*device))
        return;
    Sample sample{nowMs(), device->link(), {}};
    if (sample.link == LinkState::Connecting)
        return;
    const QString name = storedName(*device);
    DeviceState& state = m_states[name];
    if (sample.link == LinkState::Live && device->reading()) {
        sample.reading = *device->reading();
        const QByteArray info = encodeInfo(sample.reading);
        if (std::exchange(state.info, info) != info)
            m_writer.addInfo(name, device->address(), sample.timeMs, sample.reading);
    }
    m_writer.addSample(name, device->address(), sample);
    observe(device);
}

void Recorder::observe(Device* device)
{
    const QVector<DeviceFact> facts = factsOf(*device);
    if (!m_isFollowing || facts.isEmpty() || !m_isRecorded(*device))
        return;
    DeviceState& state = m_states[storedName(*device)];
    const bool isLive = device->link() == LinkState::Live;
    for (const QString& fact : state.open.keys()) {
        const bool isSo = std::any_of(facts.begin(), facts.end(),
                                      [&](const DeviceFact& f) { return f.fact == fact; });
        if (!isSo && (isLive || isSeenWithoutReading(state.open.value(fact).entry.kind)))
            endFact(state, fact);
    }
    for (const DeviceFact& fact : facts)
        beginFact(device, state, fact);
    const UpsReading* reading = device->reading();
    const auto outage = state.open.find(QStringLiteral("outage"));
    if (isLive && reading->charge && outage != state.open.end())
        outage->entry.lowestCharge =
            std::min(outage->entry.lowestCharge.value_or(*reading->charge), *reading->charge);
    state.wasLive = isLive;
    if (isLive)
        state.lastLiveMs = nowMs();
}

void Recorder::beginFact(Device* device, DeviceState& state, const DeviceFact& fact)
{
    const auto open = state.open.find(fact.fact);
    if (open != state.open.end()) {
        open->isResumed = false;
        if (fact.kind == JournalKind::Condition)
            device->setConditionSince(QDateTime::fromMSecsSinceEpoch(open->entry.onsetMs));
        return;
    }
    JournalEntry entry = moment(fact.kind, fact.severity, cleanDeviceText(fact.text));
    entry.isMoment = false;
    entry.device = storedName(*device);
    entry.message = cleanDeviceText(fact.message);
    entry.fact = fact.fact;
    if (fact.kind == JournalKind::Condition)
        entry.onsetMs = device->conditionSince().toMSecsSinceEpoch();
    else if (fact.ageSeconds > 0 && fact.ageSeconds < kLongestAge)
        // Not before the reading in which it was not so, whatever the device counts.
        entry.onsetMs =
            std::max(entry.onsetMs - static_cast<qint64>(fact.ageSeconds * kMsPerSecond),
                     state.lastLiveMs.value_or(0));
    state.open.insert(fact.fact, {entry, false});
    begin(entry, device->address());
}

void Recorder::endFact(DeviceState& state, const QString& fact)
{
    Open open = state.open.take(fact);
    if (open.isResumed) {
        endStored(open.entry, state.lastSeenMs);
        return;
    }
    const bool wasUnseen = !state.wasLive && !isSeenWithoutReading(open.entry.kind);
    // A clock that was set back must not end it before it began.
    open.entry.endMs = std::max(nowMs(), open.entry.onsetMs);
    m_writer.end(open.entry.key, *open.entry.endMs,
                 wasUnseen ? tr("Ended while the device could not be reached.") : QString(),
                 open.entry.lowestCharge);
    emit entryEnded(open.entry);
}

void Recorder::noteRemoval(const QString& name)
{
    for (int i = 0; i < m_fleet.count(); ++i)
        if (storedName(*m_fleet.at(i)) == name)
            return;
    const DeviceState state = m_states.take(name);
    for (const Open& open : state.open)
        m_writer.end(open.entry.key, std::max(nowMs(), open.entry.onsetMs),
                     tr("The device is no longer watched."), open.entry.lowestCharge);
}

// The desk

JournalEntry Recorder::moment(JournalKind kind, Urgency severity, const QString& text) const
{
    JournalEntry entry;
    entry.key = newJournalKey();
    entry.site = m_writer.options().site;
    entry.kind = kind;
    entry.severity = severity;
    entry.text = text;
    entry.onsetMs = nowMs();
    entry.isMoment = true;
    return entry;
}

void Recorder::begin(const JournalEntry& entry, const QString& address)
{
    m_writer.begin(entry, address);
    emit entryBegun(entry);
}

void Recorder::noteEvent(int number)
{
    const DeskEvent& event = m_log.at(number);
    JournalEntry entry = moment(kEventKinds[static_cast<int>(event.kind)],
                                event.isBad ? Urgency::Warning : Urgency::Normal, event.text);
    if (event.time.isValid())
        entry.onsetMs = event.time.toMSecsSinceEpoch();
    entry.operatorName = event.operatorName;
    entry.message = outcomeText(event);
    QString address;
    entry.device = event.device;
    for (int i = 0; i < m_fleet.count(); ++i)
        if (m_fleet.at(i)->name() == event.device) {
            entry.device = storedName(*m_fleet.at(i));
            address = m_fleet.at(i)->address();
        }
    m_eventKeys.push_back(entry.key);
    while (static_cast<int>(m_eventKeys.size()) > m_log.count())
        m_eventKeys.pop_front();
    begin(entry, address);
}

void Recorder::noteOutcome(int number)
{
    const DeskEvent& event = m_log.at(number);
    // The newest of both lists are the same event; older ones were there before the recorder.
    const int back = m_log.count() - number;
    if (back > static_cast<int>(m_eventKeys.size()))
        return;
    m_writer.end(m_eventKeys[m_eventKeys.size() - static_cast<std::size_t>(back)], nowMs(),
                 outcomeText(event), {}, event.isBad ? Urgency::Warning : Urgency::Normal);
}

void Recorder::noteClock()
{
    const qint64 offset = nowMs() - m_clock.bootMs();
    const qint64 jump = offset - m_clockOffsetMs;
    m_clockOffsetMs = offset;
    if (qAbs(jump) > kClockJumpMs)
        begin(moment(JournalKind::Clock, Urgency::Warning,
                     jump > 0
                         ? tr("The desk's clock was set forward by %1 s").arg(jump / kMsPerSecond)
                         : tr("The desk's clock was set back by %1 s").arg(-jump / kMsPerSecond)));
    // A reading that has outlived its limit is stale without another poll.
    for (int i = 0; i < m_fleet.count(); ++i) {
        Device* device = m_fleet.at(i);
        const auto state = m_states.constFind(storedName(*device));
        if (state != m_states.cend() && state->wasLive && device->link() != LinkState::Live)
            observe(device);
    }
}

void Recorder::noteFault(const QString& text)
{
    if (m_fault)
        return;
    m_fault = moment(JournalKind::Store, Urgency::Warning, text);
    m_fault->isMoment = false;
    m_fault->fact = QStringLiteral("store");
    begin(*m_fault);
}

void Recorder::noteRecovery(const QString& text)
{
    if (!m_fault)
        return;
    m_fault->endMs = nowMs();
    m_writer.end(m_fault->key, *m_fault->endMs, text);
    emit entryEnded(*m_fault);
    m_fault.reset();
}

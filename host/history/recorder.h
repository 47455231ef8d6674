#ifndef RECORDER_H
#define RECORDER_H

// Listens to the fleet and the desk and writes down what happens: samples of every poll, and in
// the journal what is so of a device, from its onset to its end.
// May touch: the fleet, the event log, readings, the writer and the reader; no widget.

#include "fleet/eventlog.h"
#include "fleet/fleet.h"
#include "history/historyreader.h"
#include "history/historywriter.h"

#include <deque>

struct DeviceFact;

class Recorder : public QObject
{
    Q_OBJECT

public:
    using IsRecorded = std::function<bool(const Device&)>;

    // All must outlive the recorder. isRecorded: devices that are not are passed over.
    Recorder(Fleet& fleet, EventLog& log, HistoryWriter& writer, HistoryReader& reader,
             IsRecorded isRecorded, const FleetClock& clock = FleetClock::system(),
             QObject* parent = nullptr);
    ~Recorder() override;

    // Reads what was open when the last run ended, then follows the fleet. Where the store does not
    // answer within kPatienceMs, it is followed without.
    void start();
    static constexpr qint64 kPatienceMs = 10 * 1000;
    bool isFollowing() const { return m_isFollowing; }

signals:
    // An entry has begun or is over; with its end, if it has one. For notifications.
    void entryBegun(const JournalEntry& entry);
    void entryEnded(const JournalEntry& entry);

private:
    struct Open {
        JournalEntry entry;
        bool isResumed = false; // of an earlier run, not seen again yet
    };
    struct DeviceState {
        QHash<QString, Open> open; // by fact
        QByteArray info;           // as last written
        bool wasLive = false;
        std::optional<qint64> lastLiveMs;
        std::optional<qint64> lastSeenMs; // by an earlier run
    };
    struct Stored {
        QVector<JournalEntry> open;
        QMap<QString, qint64> lastSeen;
    };

    static Stored readStored(HistoryQueries& queries, const QString& site);
    void askForStored();
    void takeStored(const Stored& stored);
    void endStored(const JournalEntry& entry, std::optional<qint64> lastSeenMs);

    void record(Device* device);
    void observe(Device* device);
    void beginFact(Device* device, DeviceState& state, const DeviceFact& fact);
    void endFact(DeviceState& state, const QString& fact);
    void noteRemoval(const QString& name);
    void noteEvent(int number);
    void noteOutcome(int number);
    void noteClock();
    void noteFault(const QString& text);
    void noteRecovery(const QString& text);
    JournalEntry moment(JournalKind kind, Urgency severity, const QString& text) const;
    void begin(const JournalEntry& entry, const QString& address = {});
    qint64 nowMs() const;

    Fleet& m_fleet;
    EventLog& m_log;
    HistoryWriter& m_writer;
    HistoryReader& m_reader;
    const IsRecorded m_isRecorded;
    const FleetClock& m_clock;

    QHash<QString, DeviceState> m_states; // by stored name
    std::deque<QString> m_eventKeys;      // of the events in the log
    std::optional<JournalEntry> m_fault;
    bool m_isFollowing = false;
    qint64 m_startedBootMs = 0;
    qint64 m_clockOffsetMs = 0; // wall clock ahead of the boot clock
};

#endif // RECORDER_H

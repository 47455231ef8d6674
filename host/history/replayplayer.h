#ifndef REPLAYPLAYER_H
#define REPLAYPLAYER_H

// Goes through the stored readings of a device at a stored time, at any speed, to and fro.
// May touch: the history's reader; no device, no widget.

#include "history/historyreader.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <deque>

class ReplayPlayer : public QObject
{
    Q_OBJECT

public:
    using Readings = QVector<StoredReading>;

    // Readings that a jump brings with it, so that the charts do not start empty.
    static constexpr int kBefore = 120;

    // device: the name by which the history knows it.
    ReplayPlayer(HistoryReader* reader, const QString& device, QObject* parent = nullptr);

    // Finds out what is stored, then goes to that time; below 0: that many ms before the end.
    void open(qint64 timeMs);

    TimeRange range() const { return m_range; } // empty before opened()
    qint64 timeMs() const { return m_timeMs; }
    bool isPlaying() const { return m_timer.isActive(); }
    int speed() const { return m_speed; }

    // Goes there as soon as the store has answered; of several wishes the last one counts.
    void seek(qint64 timeMs);
    // To the next reading, or to the one before.
    void step(bool forward);
    void play();
    void pause();
    void setSpeed(int times); // 1 and more
    // Real time has passed; while it plays, a timer calls it.
    void advance(qint64 realMs);

signals:
    void opened();
    void failed(const QString& text); // there is nothing to be shown; plain text
    // It is another time now: the last readings until then, oldest first, and since when the device
    // had been in its condition; 0: the journal does not know.
    void jumped(const QVector<StoredReading>& before, qint64 conditionSinceMs);
    void played(const StoredReading& reading);
    void changed(); // the time, the range, or whether it plays

private:
    struct Stored {
        StoredDevice device;
        TimeRange range;
    };

    struct Jump {
        Readings before;
        qint64 conditionSinceMs = 0;
    };

    static Jump readJump(HistoryQueries& store, const StoredDevice& device, qint64 timeMs);
    void takeStored(const Stored& stored, qint64 timeMs);
    void askBefore();
    void takeJump(const Jump& jump, qint64 timeMs);
    void askAhead();
    void skipGap();

    QPointer<HistoryReader> m_reader;
    const QString m_name;
    StoredDevice m_device;
    TimeRange m_range;
    qint64 m_timeMs = 0;
    std::optional<qint64> m_wanted; // a jump that waits for the answer to another one
    bool m_isJumping = false;
    bool m_isAsking = false;
    bool m_hasAll = false;
    int m_journey = 0; // counts jumps: what was asked ahead of an earlier one is of no use
    std::deque<StoredReading> m_ahead;
    qint64 m_lastKnownMs = 0; // of the readings that were played or are ahead
    int m_speed = 1;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
};

#endif // REPLAYPLAYER_H

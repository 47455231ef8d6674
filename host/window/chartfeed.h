#ifndef CHARTFEED_H
#define CHARTFEED_H

// Feeds the library's chart pages: first with what is stored of the last minutes, then with every
// new reading.
// May touch: devices, the history's reader, the library's charts.

#include "history/historyreader.h"

#include <QTimer>

#include <deque>

class ChartForm;
class Device;
class TrendChart;

// A chart knows no times: its samples stand side by side, as if they had come one poll after the
// other. So it gets one unbroken run of readings only, and after a silence of several polls it
// starts anew: older samples beside new ones would look as if nothing had been missing. (Zeros in
// between would look like a power failure.)
// A chart keeps as many samples as it is wide, and none before it was painted; so it is filled
// after its first paint, and again when it has grown.
class ChartFeed : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMostSamples = 700; // more than the widest screen has room for

    // Both must outlive the feed.
    ChartFeed(const Device& device, ChartForm& charts, QObject* parent = nullptr);

    // Asks once for what is stored of the time before; null: there is no history.
    void setReader(HistoryReader* reader);
    // Shows the device's reading if it is a new one.
    void refresh();

    // For a replay, which has no live readings: begins with the last unbroken run of these; goes on
    // with that one.
    void restart(const QVector<StoredReading>& readings);
    void add(const StoredReading& reading);

signals:
    void storedTaken(); // what is stored, if anything, is part of what will be shown

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeStored(const QVector<StoredReading>& stored);
    bool isGapBefore(const StoredReading& reading) const;
    bool append(const StoredReading& reading);
    bool choosePage();
    void fill();

    const Device& m_device;
    ChartForm& m_charts;
    std::deque<StoredReading> m_run; // as shown, oldest first; the last ones are live
    QHash<QObject*, int> m_widths;   // px, of each chart as it was last filled
    qint64 m_shownReading = -1;      // number of the last one
    bool m_isAsked = false;
    bool m_isReplay = false;
    QTimer m_filler;
};

#endif // CHARTFEED_H

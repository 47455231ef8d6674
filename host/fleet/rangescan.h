#ifndef RANGESCAN_H
#define RANGESCAN_H

// Which of many addresses have a device behind them? Each is asked once, a few at a time.
// May touch: devices and connectors by their base class; no widget.

#include "fleet/connectiontest.h"

#include <QVector>

class RangeScan : public QObject
{
    Q_OBJECT

public:
    static constexpr int kAtATime = 32;

    // candidates: what is asked, and nothing else. Deleting the scan breaks it off.
    RangeScan(const Fleet::ConnectorMaker& maker, const QVector<DeviceSettings>& candidates,
              QObject* parent = nullptr);
    ~RangeScan() override;

    void start();

signals:
    // Somebody answered: live, stale or refused.
    void found(const DeviceSettings& settings, const Device& device);
    void progressed(int asked, int all);
    void finished();

private:
    void askNext();
    void take(ConnectionTest* test);

    const Fleet::ConnectorMaker m_maker;
    const QVector<DeviceSettings> m_candidates;
    int m_begun = 0;
    int m_done = 0;
};

#endif // RANGESCAN_H

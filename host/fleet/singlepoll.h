#ifndef SINGLEPOLL_H
#define SINGLEPOLL_H

// One poll of a device outside of the fleet's schedule, with an end in any case.
// May touch: devices; no widget.

#include "fleet/device.h"

#include <QTimer>

class SinglePoll : public QObject
{
    Q_OBJECT

public:
    // The device must outlive the poll.
    explicit SinglePoll(Device& device, QObject* parent = nullptr);

    // Ends with exactly one finished(); call it once. Afterwards the device is live, stale, lost or
    // refused, never still connecting.
    void start();

signals:
    void finished();

private:
    Device& m_device;
    QTimer m_limitTimer;
};

#endif // SINGLEPOLL_H

#ifndef ATTENTION_H
#define ATTENTION_H

// How many devices need somebody, and how much: for the tray, the title and the task bar.
// May touch: the fleet; no widget.

#include "fleet/fleet.h"

class Attention : public QObject
{
    Q_OBJECT

public:
    // The fleet must outlive this.
    explicit Attention(Fleet& fleet, QObject* parent = nullptr);

    int count() const { return m_count; } // devices in trouble: a warning or more
    Urgency worst() const { return m_worst; }
    // "2 of 14 UPSes need attention"
    QString text() const;

signals:
    void changed();

private:
    void look();

    Fleet& m_fleet;
    int m_count = 0;
    int m_devices = 0;
    Urgency m_worst = Urgency::Normal;
};

#endif // ATTENTION_H

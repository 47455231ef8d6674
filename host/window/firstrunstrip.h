#ifndef FIRSTRUNSTRIP_H
#define FIRSTRUNSTRIP_H

// Says that what is shown is no real device, and how to add one. The simulated UPS that a desk
// without devices starts with leaves when the first real one comes.
// May touch: the fleet; no connector.

#include "fleet/fleet.h"

#include <QFrame>
#include <QPointer>

class QLabel;
class QPushButton;

class FirstRunStrip : public QFrame
{
    Q_OBJECT

public:
    explicit FirstRunStrip(Fleet& fleet, QWidget* parent = nullptr);

    // The device that nobody asked for. It is an ordinary one as soon as it has been edited.
    void setSimulation(Device* device);
    // Never shown again: where the devices come from elsewhere.
    void retire();
    // Without the button, where nothing can be added.
    void offerNothing();

signals:
    void addWanted();

private:
    void follow();

    Fleet& m_fleet;
    QPointer<Device> m_simulation;
    bool m_isFirstRun = false;
    bool m_isRetired = false;
    QLabel* m_text;
    QPushButton* m_add;
};

#endif // FIRSTRUNSTRIP_H

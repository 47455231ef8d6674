#ifndef WALLDISPLAY_H
#define WALLDISPLAY_H

// The overview as it hangs on a wall: counts and clock to be read across the room, no mouse
// cursor, and page after page where the devices do not fit.
// May touch: the overview, the device list model.

#include <QTimer>
#include <QWidget>

class DeviceListModel;
class OverviewPage;
class QHBoxLayout;
class QLabel;

class WallDisplay : public QWidget
{
    Q_OBJECT

public:
    // The overview becomes a child.
    WallDisplay(OverviewPage* overview, DeviceListModel& model, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showCounts();
    void fitHead();
    void showTime();
    void wakeCursor();

    OverviewPage* m_overview;
    DeviceListModel& m_model;
    QWidget* m_head;
    QHBoxLayout* m_counts;
    QLabel* m_clock;
    QTimer m_turn;
    QTimer m_cursorRest;
};

#endif // WALLDISPLAY_H

#ifndef REPLAYBAR_H
#define REPLAYBAR_H

// Says that it is the past that is on show, and which; slider, speed, steps, and the way back.
// May touch: the replay player; no device.

#include "history/replayplayer.h"

#include <QFrame>

class ElidedLabel;
class QComboBox;
class QPushButton;
class QSlider;
class QToolButton;

class ReplayBar : public QFrame
{
    Q_OBJECT

public:
    // The player must outlive the bar.
    explicit ReplayBar(ReplayPlayer& player, QWidget* parent = nullptr);

    // In place of the time: why there is nothing to be shown.
    void say(const QString& text);

signals:
    void liveWanted();

private:
    QToolButton* addButton(QLayout* row, const char* name, const QString& text, const QString& tip);
    QLayout* makeHead();
    QLayout* makeControls();
    void showTime();
    void showRange();

    ReplayPlayer& m_player;
    ElidedLabel* m_time;
    ElidedLabel* m_range;
    QSlider* m_slider; // s since the first stored moment
    QToolButton* m_play = nullptr;
    QComboBox* m_speed;
    QPushButton* m_live;
};

#endif // REPLAYBAR_H

#ifndef REPLAYPAGE_H
#define REPLAYPAGE_H

// A device as it was: the same views as ever, fed from the history. Nothing here reaches a device.
// May touch: the history's reader and replay, device pages, a command desk of its own that sends
// nothing.

#include "fleet/commanddesk.h"
#include "history/replaydevice.h"
#include "history/replayplayer.h"

#include <QWidget>

class DevicePage;

class ReplayPage : public QWidget
{
    Q_OBJECT

public:
    // settings: of the device that was recorded, device: its name in the history.
    ReplayPage(const DeviceSettings& settings, const Thresholds& thresholds, const QString& device,
               HistoryReader* reader, QWidget* parent = nullptr);
    ~ReplayPage() override;

    // Below 0: that many ms before the last stored moment.
    void open(qint64 timeMs) { m_player.open(timeMs); }
    QString device() const { return m_name; }
    void showPage(int page);

signals:
    void liveWanted();

private:
    void jump(const QVector<StoredReading>& before, qint64 conditionSinceMs);
    void showReading(const StoredReading& reading);

    const QString m_name;
    ReplayDevice m_past;
    ReplayPlayer m_player;
    // Of its own and empty, so that no command of a replay can find its way to a device.
    Fleet m_fleet;
    EventLog m_log;
    CommandDesk m_desk;
    QWidget* m_bar;
    DevicePage* m_page;
};

#endif // REPLAYPAGE_H

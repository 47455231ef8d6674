#ifndef TRAYICON_H
#define TRAYICON_H

// The desk in the tray: the worst colour, the count, show the window, mute, quit. Where there is
// no tray there is none, and nobody misses it.
// May touch: Qt Widgets, the session bus for the count on the task bar.

#include "window/attention.h"

#include <QSystemTrayIcon>

#include <memory>

class QAction;
class QMenu;
class QWidget;

class TrayIcon : public QObject
{
    Q_OBJECT

public:
    // Both must outlive the icon.
    TrayIcon(const Attention& attention, QWidget& window, bool isMuted = false);
    ~TrayIcon() override;

signals:
    void muted(bool isMuted);

private:
    void refresh();
    void showWindow();
    void tellTaskBar() const;

    const Attention& m_attention;
    QWidget& m_window;
    std::unique_ptr<QMenu> m_menu;
    QSystemTrayIcon m_icon;
};

#endif // TRAYICON_H

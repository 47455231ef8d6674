#ifndef DESK_H
#define DESK_H

// A desk at work: what it watches, who may command, what it remembers, and the window, which is
// made anew when it is to speak another language.
// May touch: everything; it is where the rooms meet.

#include "fleet/commanddesk.h"
#include "fleet/watchlist.h"
#include "history/deskhistory.h"
#include "metrics/metricsserver.h"
#include "notify/notifier.h"
#include "operators/operatorsession.h"
#include "viewer/viewer.h"
#include "window/activitywatch.h"
#include "window/attention.h"
#include "window/mainwindow.h"
#include "window/motion.h"
#include "window/trayicon.h"

#include <QPointer>

// What the command line asks of a desk.
struct DeskOptions {
    QVector<DeviceSettings> devices; // none: those of the configuration, else the simulator
    bool kiosk = false;
    // In place of what is configured:
    bool dark = false;
    LanguageChoice language = LanguageChoice::System;
};

class Desk : public QObject
{
    Q_OBJECT

public:
    // Watches from here on; the window comes with open().
    Desk(const DeskOptions& options, const DeskConfig& config);
    // Keeps how the window was left; a wall display leaves no traces, and is none of the desk's.
    ~Desk() override;

    void open();

private:
    using Edit = std::function<void(DeskSettings&)>;

    bool isViewer() const;
    void followConfig();
    void followOutside();
    void followMetrics();
    void note(const QString& text, const QString& reason);
    void beginWatching();
    void watchDevices();
    void beginViewing();
    void keep(const QString& what, const Edit& edit);

    void makeWindow();
    void followWindow();
    void renewWindow();
    void dress();

    const DeskOptions m_options;
    OperatorSession m_session;
    ActivityWatch m_watch;
    Fleet m_fleet;
    EventLog m_log;
    CommandDesk m_desk;
    WatchList m_list;
    Notifier m_notifier;
    MetricsServer m_metrics;
    Attention m_attention;
    DeskHistory m_history;
    Motion m_motion;
    std::unique_ptr<Viewer> m_viewer;
    QPointer<Device> m_simulation;
    QString m_listening;   // where metrics are served
    DeskSettings m_inFile; // at the last look
    ThemeChoice m_theme;   // as shown
    LanguageChoice m_language;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<TrayIcon> m_tray;
};

#endif // DESK_H

#include "desk.h"

#include "cli/clisupport.h"
#include "connectors/factory/connectorfactory.h"
#include "viewer/relayconnector.h"
#include "window/deviceactions.h"
#include "window/language.h"
#include "window/operatordesk.h"
#include "window/themechoice.h"

#include <QApplication>
#include <QTimer>

namespace {

constexpr int kDialogMs = 200; // between looks whether a question is still open

// What is wrong in the configuration, for the operator; empty when nothing is.
QString faultText(const DeskConfig& config)
{
    QStringList lines;
    for (const ConfigFault& fault : config.faults())
        if (fault.severity == ConfigSeverity::Error)
            lines << Desk::tr("line %1: %2").arg(fault.line).arg(fault.text);
    if (lines.isEmpty())
        return {};
    return Desk::tr("The configuration has faults and is used without them: ") +
           lines.join(QStringLiteral("; "));
}

} // namespace

Desk::Desk(const DeskOptions& options, const DeskConfig& config)
    : m_options(options)
    , m_watch(m_session)
    , m_fleet(config.settings().history.mode == HistoryMode::Viewer && options.devices.isEmpty()
                  ? RelayConnector::make
                  : makeConnector)
    , m_desk(m_fleet, m_log,
             [this] {
                 m_session.check();
                 return CommandDesk::Operator{m_session.name(), m_session.level()};
             })
    , m_list(m_fleet, config)
    , m_notifier(m_fleet, config.settings().notify)
    , m_metrics(m_fleet)
    , m_attention(m_fleet)
    // A simulation is worth keeping only where somebody has put it into the configuration.
    , m_history(m_fleet, m_log,
                [this](const Device& device) {
                    return !device.isSimulated() || m_list.isConfigured(&device);
                })
    , m_inFile(config.settings())
    , m_theme(options.dark ? ThemeChoice::Dark : m_inFile.theme)
    , m_language(options.language == LanguageChoice::System ? m_inFile.language : options.language)
{
    applyThemeChoice(m_theme);
    language::apply(m_language);
    m_motion.choose(m_inFile.motion);
    followConfig();
    makeWindow();
    if (const QString faults = faultText(config); !faults.isEmpty())
        m_window->tell(faults, true);
    followOutside();
    connect(&m_list, &WatchList::changed, this, &Desk::followConfig);
    connect(&m_list, &WatchList::changed, this, &Desk::dress);
    connect(&m_list, &WatchList::secretsFailed, this,
            [this](const QString& text) { m_window->tell(text, true); });
    connect(&m_history, &DeskHistory::told, this,
            [this](const QString& text, bool isBad) { m_window->tell(text, isBad); });
    connect(&m_attention, &Attention::changed, this,
            [this] { m_window->setTroubleCount(m_attention.count()); });
    beginWatching();
}

Desk::~Desk()
{
    if (!m_options.kiosk)
        m_window->state().save();
}

void Desk::open()
{
    if (m_options.kiosk)
        return m_window->showFullScreen();
    m_window->restore(WindowState::load());
    m_window->show();
}

// Watching

// Who names a device wants to see that one, whatever others collect.
bool Desk::isViewer() const
{
    return m_list.config().settings().history.mode == HistoryMode::Viewer &&
           m_options.devices.isEmpty();
}

void Desk::beginWatching()
{
    if (isViewer())
        return beginViewing();
    watchDevices();
    const HistorySettings& history = m_list.config().settings().history;
    if (history.mode == HistoryMode::Desk)
        m_history.start(history, m_list.config().settings().secrets);
}

// Those of the command line, else those of the configuration, else the simulator.
void Desk::watchDevices()
{
    for (const DeviceSettings& settings : m_options.devices)
        m_fleet.add(settings);
    if (m_options.devices.isEmpty())
        m_list.load();
    if (m_fleet.count() == 0) {
        m_simulation = m_fleet.add(*settingsForAddress(QStringLiteral("sim:")));
        m_window->setSimulation(m_simulation);
    }
    if (m_fleet.count() == 1 && !m_options.kiosk)
        m_window->openDevice(m_fleet.at(0));
}

// A desk that shows what the collectors tell, and polls nothing.
void Desk::beginViewing()
{
    m_list.leaveDevices();
    m_viewer = std::make_unique<Viewer>(m_fleet);
    m_window->setViewer(*m_viewer);
    const DeskSettings& settings = m_list.config().settings();
    m_viewer->start(settings.history, settings.secrets);
    // What collectors have written is news for the journal, too.
    connect(&m_history, &DeskHistory::started, m_viewer.get(), [this] {
        connect(m_viewer.get(), &Viewer::heard, m_history.writer(), &HistoryWriter::committed);
    });
    m_history.startReading(settings.history, settings.secrets);
}

// Following

// What the configuration says at the start and whenever it has changed.
void Desk::followConfig()
{
    const DeskConfig& config = m_list.config();
    m_session.setOperators(Operators(config.operators()));
    m_session.setIdleTime(config.settings().idleLogout * static_cast<int>(kMsPerMinute));
    m_fleet.setThresholds(config.settings().thresholds);
}

// Notifications and metrics as the settings want them; what fails stands in the event list.
void Desk::followOutside()
{
    connect(&m_notifier, &Notifier::failed, this,
            [this](Notifier::Channel channel, const QString& reason) {
                note(Notifier::channelName(channel), reason);
            });
    connect(&m_notifier, &Notifier::beep, this, &QApplication::beep);
    connect(&m_list, &WatchList::changed, this, [this] {
        m_notifier.setSettings(m_list.config().settings().notify);
        followMetrics();
    });
    followMetrics();
}

void Desk::followMetrics()
{
    const QString& wanted = m_list.config().settings().metrics;
    if (wanted == m_listening)
        return;
    m_listening = wanted;
    if (const QString reason = m_metrics.listen(wanted); !reason.isEmpty())
        note(tr("Metrics"), reason);
}

void Desk::note(const QString& text, const QString& reason)
{
    DeskEvent event;
    event.kind = EventKind::Fault;
    event.text = text;
    event.outcome = tr("failed");
    event.message = reason;
    event.isBad = true;
    m_log.append(event);
}

// A change of the file, from wherever, dresses the window; what the command line has chosen stays
// until then.
void Desk::dress()
{
    const DeskSettings before = m_inFile;
    m_inFile = m_list.config().settings();
    if (m_inFile.theme != before.theme) {
        m_theme = m_inFile.theme;
        applyThemeChoice(m_theme);
        m_window->markTheme(m_theme);
    }
    m_motion.choose(m_inFile.motion);
    if (m_inFile.language != before.language) {
        m_language = m_inFile.language;
        QTimer::singleShot(0, this, &Desk::renewWindow); // this one may be speaking
    }
}

// A choice of the menu, into the file.
void Desk::keep(const QString& what, const Edit& edit)
{
    const QString reason = m_list.edit(what, [&edit](DeskConfig& edited) {
        DeskSettings settings = edited.settings();
        edit(settings);
        return edited.setSettings(settings);
    });
    if (!reason.isEmpty())
        m_window->tell(reason, true);
}

// The window

void Desk::makeWindow()
{
    const auto mode = m_options.kiosk ? MainWindow::Mode::Kiosk : MainWindow::Mode::Desk;
    m_window = std::make_unique<MainWindow>(m_fleet, m_desk, m_log, m_session, mode);
    m_window->markTheme(m_theme);
    m_window->markLanguage(m_language);
    const auto* operators = new OperatorDesk(m_session, m_list, m_desk, m_log, m_window.get());
    if (!m_options.kiosk)
        m_window->setActions(
            new DeviceActions(m_fleet, m_list, makeConnector, m_session, m_window.get()),
            operators->settingsAction());
    m_window->setTroubleCount(m_attention.count());
    m_window->setHistory(m_history);
    if (m_viewer)
        m_window->setViewer(*m_viewer);
    if (m_simulation)
        m_window->setSimulation(m_simulation);
    m_tray = std::make_unique<TrayIcon>(m_attention, *m_window, m_notifier.isMuted());
    connect(m_tray.get(), &TrayIcon::muted, &m_notifier, &Notifier::setMuted);
    followWindow();
}

void Desk::followWindow()
{
    connect(m_window.get(), &MainWindow::themeChosen, this, [this](ThemeChoice choice) {
        m_theme = choice;
        applyThemeChoice(choice);
        m_window->markTheme(choice);
        keep(tr("Theme"), [choice](DeskSettings& settings) { settings.theme = choice; });
    });
    connect(m_window.get(), &MainWindow::languageChosen, this, [this](LanguageChoice choice) {
        m_language = choice;
        QTimer::singleShot(0, this, [this, choice] { // the menu that speaks goes with its window
            renewWindow();
            keep(tr("Language"), [choice](DeskSettings& settings) { settings.language = choice; });
        });
    });
}

// Texts are asked for where they are shown: a window made anew asks in the new language. A question
// that is open is answered first.
void Desk::renewWindow()
{
    if (QApplication::activeModalWidget())
        return QTimer::singleShot(kDialogMs, this, &Desk::renewWindow);
    if (m_window->language() == m_language)
        return;
    language::apply(m_language);
    const WindowState state = m_window->state();
    const std::unique_ptr<MainWindow> before = std::move(m_window);
    m_tray.reset();
    makeWindow();
    m_window->restore(state);
    m_window->setVisible(before->isVisible());
    before->hide();
}

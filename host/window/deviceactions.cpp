#include "window/deviceactions.h"

#include "window/confirmbox.h"
#include "window/devicedialog.h"
#include "window/finddevicesdialog.h"

#include <QAction>
#include <QHBoxLayout>
#include <QToolButton>

DeviceActions::DeviceActions(Fleet& fleet, WatchList& list, const Fleet::ConnectorMaker& maker,
                             OperatorSession& session, QWidget* window)
    : QObject(window)
    , m_fleet(fleet)
    , m_list(list)
    , m_maker(maker)
    , m_gate(new OperatorGate(session, window))
    , m_window(window)
    , m_add(makeAction(tr("A&dd\u2026"), "AddDevice", Qt::Key_Insert, [this] { add(); }))
    , m_addSeveral(makeAction(tr("Add se&veral\u2026"), "AddSeveral",
                              Qt::CTRL | Qt::SHIFT | Qt::Key_N, [this] { addSeveral(); }))
    , m_edit(makeAction(tr("&Edit\u2026"), "EditDevice", Qt::Key_F2, [this] { edit(); }))
    , m_remove(
          makeAction(tr("&Remove\u2026"), "RemoveDevice", Qt::Key_Delete, [this] { remove(); }))
    , m_moveUp(
          makeAction(tr("Move &up"), "MoveDeviceUp", Qt::ALT | Qt::Key_Up, [this] { move(-1); }))
    , m_moveDown(makeAction(tr("Move d&own"), "MoveDeviceDown", Qt::ALT | Qt::Key_Down,
                            [this] { move(1); }))
{
    m_addSeveral->setShortcutContext(Qt::WindowShortcut);
    m_moveUp->setIconText(QStringLiteral("\u2191"));
    m_moveDown->setIconText(QStringLiteral("\u2193"));
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this, [this](int index) {
        if (m_fleet.at(index) != m_current)
            return;
        m_lostIndex = index;
        m_current = nullptr;
    });
    connect(&fleet, &Fleet::deviceReplaced, this, [this](int index) {
        if (index == m_lostIndex)
            m_current = m_fleet.at(index);
    });
    for (auto happened : {&Fleet::deviceAdded, &Fleet::deviceRemoved, &Fleet::deviceReplaced})
        connect(&fleet, happened, this, &DeviceActions::refresh);
    connect(&fleet, &Fleet::deviceMoved, this, &DeviceActions::refresh);
    refresh();
}

QAction* DeviceActions::makeAction(const QString& text, const char* name,
                                   const QKeySequence& shortcut, const std::function<void()>& act)
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, act] { m_gate->pass(act); });
    return action;
}

QWidget* DeviceActions::makeButtons() const
{
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    for (QAction* action : actions()) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(action->text().remove(QLatin1Char('&')));
        row->addWidget(button);
    }
    row->addStretch(1);
    return bar;
}

void DeviceActions::setCurrent(Device* device)
{
    m_current = device;
    m_lostIndex = -1;
    refresh();
}

void DeviceActions::lock()
{
    m_isLocked = true;
    for (QAction* action : {m_add, m_addSeveral, m_edit, m_remove, m_moveUp, m_moveDown})
        action->setEnabled(false);
}

void DeviceActions::refresh()
{
    if (m_isLocked)
        return;
    const int index = m_current ? m_fleet.indexOf(m_current) : -1;
    m_edit->setEnabled(index >= 0);
    m_remove->setEnabled(index >= 0);
    m_moveUp->setEnabled(index > 0);
    m_moveDown->setEnabled(index >= 0 && index + 1 < m_fleet.count());
}

QStringList DeviceActions::otherNames(const QString& name) const
{
    QStringList names;
    for (const DeviceSettings& device : m_list.config().devices())
        if (device.name != name)
            names << device.name;
    return names;
}

void DeviceActions::openDialog(const DeviceSettings& device,
                               const std::function<QString(const DeviceSettings&)>& save)
{
    auto* dialog = new DeviceDialog(device, otherNames(device.name), m_maker, save, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void DeviceActions::add()
{
    DeviceSettings fresh;
    fresh.pollInterval = m_list.config().settings().pollInterval;
    openDialog(fresh, [this](const DeviceSettings& settings) {
        const QString reason = m_list.add(settings);
        if (reason.isEmpty())
            emit chosen(m_list.find(settings.name));
        return reason;
    });
}

void DeviceActions::addSeveral()
{
    DeviceSettings fresh;
    fresh.pollInterval = m_list.config().settings().pollInterval;
    const auto save = [this](const QVector<DeviceSettings>& devices) {
        return m_list.add(devices);
    };
    auto* dialog = new FindDevicesDialog(fresh, otherNames({}), m_maker, save, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void DeviceActions::edit()
{
    if (!m_current)
        return;
    // The device may be replaced while the dialog is open: its secrets arrive, or the file was
    // changed. A device of the command line has no name in the file.
    const QPointer<Device> device = m_current;
    const QString name = m_list.isConfigured(device) ? device->settings().name : QString();
    openDialog(device->settings(), [this, device, name](const DeviceSettings& settings) {
        Device* target = device ? device.data() : m_list.find(name);
        if (!target)
            return tr("The device is no longer in the list.");
        const QString reason = m_list.change(target, settings);
        if (reason.isEmpty())
            emit chosen(m_list.find(settings.name));
        return reason;
    });
}

void DeviceActions::remove()
{
    if (!m_current)
        return;
    const QPointer<Device> device = m_current;
    ConfirmBox::ask(
        {tr("Remove a device"), tr("Remove \"%1\" from the list of devices?").arg(device->name()),
         m_list.isConfigured(device)
             ? tr("Its settings and secrets are deleted. What was recorded of it stays.")
             : tr("It is not in the configuration; the list loses it until the next start."),
         tr("&Remove")},
        m_window, [this, device](bool yes) {
            if (yes && device)
                conclude(m_list.remove(device), nullptr);
        });
}

void DeviceActions::move(int step)
{
    Device* device = m_current;
    if (device)
        conclude(m_list.move(device, m_fleet.indexOf(device) + step), device);
}

void DeviceActions::conclude(const QString& reason, Device* device)
{
    if (!reason.isEmpty())
        emit refused(reason);
    else if (device)
        emit chosen(device);
}

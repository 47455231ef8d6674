#ifndef SHOWNWINDOWS_H
#define SHOWNWINDOWS_H

// All that an operator gets to see, filled in and on show.
// May touch: the windows, a scripted connector.

#include "connectors/factory/connectorfactory.h"
#include "support/scriptedconnector.h"
#include "window/confirmbox.h"
#include "window/deviceactions.h"
#include "window/devicedialog.h"
#include "window/devicepage.h"
#include "window/finddevicesdialog.h"
#include "window/logindialog.h"
#include "window/mainwindow.h"
#include "window/settingsdialog.h"

#include <QAction>
#include <QTemporaryDir>

// A device with that many lines, on a page with all its views made.
struct ShownDevice {
    explicit ShownDevice(int lines)
    {
        DeviceSettings settings;
        settings.address = *parseDeviceAddress(QStringLiteral("nut://h/u")).address;
        Device& device = *fleet.add(settings);
        page = new DevicePage(device, desk, &window);
        window.resize(1024, 768);
        page->resize(window.size());
        window.show();
        page->finishViews();
        UpsReading reading;
        reading.outputSource = OutputSource::Utility;
        reading.charge = 87;
        reading.runtime = 21 * 60;
        reading.output.load[0] = 34;
        reading.input.lines = reading.output.lines = lines;
        reading.input.voltage = {231, 232, 233};
        reading.alarmTexts = QStringList{QStringLiteral("Replace battery!")};
        connector->answer(LinkState::Live, reading);
        page->refresh();
    }

    ScriptedConnector* connector = nullptr;
    Fleet fleet{[this](const DeviceSettings&) {
        auto made = std::make_unique<ScriptedConnector>();
        connector = made.get();
        return made;
    }};
    EventLog log;
    CommandDesk desk{fleet, log, [] { return CommandDesk::Operator{}; }};
    QWidget window;
    DevicePage* page = nullptr;
};

// All devices on show, one of each kind of trouble.
struct ShownDesk {
    ShownDesk()
    {
        const auto add = [this](const char* name, LinkState link, double charge) {
            DeviceSettings settings;
            settings.name = name;
            settings.group = "North hall";
            settings.address = *parseDeviceAddress(QStringLiteral("nut://h/u")).address;
            fleet.add(settings);
            UpsReading reading;
            reading.outputSource = charge > 50 ? OutputSource::Utility : OutputSource::Battery;
            reading.charge = charge;
            reading.runtime = charge * 15;
            connector->answer(LinkState::Live, reading);
            if (link != LinkState::Live)
                connector->answer(link, {}, "No route");
        };
        add("Alpha", LinkState::Live, 87);
        add("Beta", LinkState::Live, 12);
        add("Gamma", LinkState::Lost, 87);
        DeskEvent event;
        event.isBad = true;
        event.outcome = "failed";
        log.append(event);
        window.tell("Bad news", true);
        window.resize(1024, 768);
        window.show();
    }

    ScriptedConnector* connector = nullptr;
    Fleet fleet{[this](const DeviceSettings&) {
        auto made = std::make_unique<ScriptedConnector>();
        connector = made.get();
        return made;
    }};
    EventLog log;
    CommandDesk commands{fleet, log, [] { return CommandDesk::Operator{}; }};
    OperatorSession session;
    MainWindow window{fleet, commands, log, session};
};

// Every window that has something to fill in, and the desk itself.
struct AllWindows : ShownDesk {
    AllWindows()
    {
        DeviceSettings v3;
        v3.address =
            *parseDeviceAddress(QStringLiteral("snmp://u@h?version=3&level=authPriv")).address;
        const auto save = [](const auto&) { return QString(); };
        all << &window << new DeviceDialog({}, {}, makeConnector, save, &window)
            << new DeviceDialog(v3, {}, makeConnector, save, &window)
            << new FindDevicesDialog({}, {}, makeConnector, save, &window)
            << new LoginDialog(session, true, &window) << new SettingsDialog(list, &window);
        window.setActions(new DeviceActions(fleet, list, makeConnector, session, &window),
                          new QAction(&window));
    }

    int count() const { return all.size() + 1; }
    QWidget* at(int index) // the box locks the others
    {
        return index < all.size()
                   ? all[index]
                   : ConfirmBox::ask({"Shut down", "Really?", "At once", "&Shut down"}, &window,
                                     [](bool) {});
    }

    QTemporaryDir folder;
    WatchList list{fleet, DeskConfig::load(folder.filePath("upsdesk.conf"))};
    QVector<QWidget*> all;
};

#endif // SHOWNWINDOWS_H

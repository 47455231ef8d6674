// What a device costs on the desk: the CPU time from a poll to the pixels of each page that can be
// on show, and the memory of an opened view and of a thousand listed devices.
// May touch: the window rooms, the fleet and the memory allocator of the C library.

#include "childform.h"
#include "energyline.h"

#include "connectors/connector.h"
#include "window/devicelistmodel.h"
#include "window/devicepage.h"
#include "window/theme.h"

#include <QApplication>
#include <QEventLoop>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <malloc.h>

namespace {

constexpr QSize kPageSize(1024, 768);
constexpr int kPolls = 101;
constexpr int kAlarmPolls = 10;
constexpr int kViews = 50;
constexpr int kListed = 1000;

// What is asked of upsdesk.
constexpr double kMostPollMs = 2;

// The program itself says what a poll has brought.
class SilentConnector : public Connector
{
public:
    void poll() override {}
    void send(const UpsCommand&) override {}
};

std::unique_ptr<Connector> makeSilent(const DeviceSettings&)
{
    return std::make_unique<SilentConnector>();
}

double cpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double allocatedBytes()
{
    const auto info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

// Delayed layouts and paints, as far as they ask for each other.
void settle()
{
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

void rest(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

// Every number is another one at each poll; alarms come and go less often.
PollResult poll(int number)
{
    UpsReading reading;
    reading.outputSource = OutputSource::Utility;
    reading.saysMains = true;
    reading.batteryState = BatteryState::FloatCharge;
    reading.charge = 50 + number % 50;
    reading.runtime = 1200 + 60 * number;
    reading.batteryVoltage = 54 + 0.1 * (number % 9);
    for (LineReading* lines : {&reading.input, &reading.output, &reading.bypass}) {
        lines->lines = 3;
        for (auto* quantity : {&lines->voltage, &lines->current, &lines->frequency, &lines->power})
            quantity->fill(40 + number % 17);
    }
    reading.output.load.fill(30 + number % 13);
    if (number / kAlarmPolls % 2 == 1)
        reading.alarms = {Alarm::OutputOverload, Alarm::FanFailure};
    reading.model = QStringLiteral("Model 3000");
    reading.manufacturer = QStringLiteral("Maker");
    return {LinkState::Live, reading, {}};
}

DeviceSettings settings(int number)
{
    DeviceSettings settings;
    settings.address =
        *parseDeviceAddress(QStringLiteral("snmp://public@10.0.0.1:%1").arg(1000 + number)).address;
    settings.name = QStringLiteral("UPS %1").arg(number);
    return settings;
}

// The median of many polls.
double pollToPixelMs(int page)
{
    Fleet fleet(makeSilent);
    EventLog log;
    CommandDesk desk(fleet, log, [] { return CommandDesk::Operator{}; });
    Device* device = fleet.add(settings(0));
    device->takeResult(poll(0));
    QWidget window; // the platform remarks on windows with a least size
    DevicePage shown(*device, desk, &window);
    window.resize(kPageSize);
    shown.resize(kPageSize);
    window.show();
    shown.finishViews();
    shown.showPage(page);
    rest(500);
    auto* animation = shown.findChild<Energyline*>()->findChild<QTimer*>();

    QVector<double> works;
    for (int i = 1; i <= kPolls; ++i) {
        const double start = cpuMs();
        device->takeResult(poll(i));
        shown.refresh();
        QMetaObject::invokeMethod(animation, "timeout"); // which shows what the poll has brought
        settle();
        works << cpuMs() - start;
    }
    std::sort(works.begin(), works.end());
    return works[kPolls / 2];
}

// Of each further device view, opened once and gone through.
double bytesOfView()
{
    QWidget window;
    window.resize(kPageSize);
    window.show();
    double before = 0;
    for (int i = 0; i <= kViews; ++i) {
        auto* view = new ChildForm;
        view->setParent(&window);
        view->setName(QStringLiteral("UPS"));
        view->flushData({{0, 2}});
        view->show();
        auto* tabs = view->findChild<QTabWidget*>();
        for (int tab = tabs->count() - 1; tab >= 0; --tab) {
            tabs->setCurrentIndex(tab);
            settle();
        }
        view->hide();
        settle();
        if (i == 0) // what all have in common
            before = allocatedBytes();
    }
    return (allocatedBytes() - before) / kViews;
}

double bytesOfListedDevices()
{
    const double before = allocatedBytes();
    Fleet fleet(makeSilent);
    DeviceListModel model(fleet);
    for (int i = 0; i < kListed; ++i)
        fleet.add(settings(i))->takeResult(poll(i));
    settle();
    for (int row = 0; row < model.rowCount(); ++row)
        for (int role : {int(Qt::DisplayRole), int(DeviceListModel::FilterRole)})
            model.index(row).data(role);
    return allocatedBytes() - before;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    applyTheme(Theme::Light);
    bool good = true;
    for (int page = 0; page < DevicePage::pages().size(); ++page) {
        const double ms = pollToPixelMs(page);
        good &= ms < kMostPollMs;
        std::printf("poll to pixel, %-12s %5.2f ms CPU  %s\n", DevicePage::pages()[page].title, ms,
                    ms < kMostPollMs ? "ok" : "MISSED");
    }
    std::printf("an opened device view        %5.0f KiB\n", bytesOfView() / 1024);
    std::printf("%d listed devices          %5.0f KiB\n", kListed, bytesOfListedDevices() / 1024);
    return good ? 0 : 1;
}

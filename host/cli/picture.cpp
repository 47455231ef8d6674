// upsdesk picture ADDRESS --out DIR: one PNG per page, with or without a display.
// May touch: the window room and devices.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/onepoll.h"
#include "cli/subcommands.h"
#include "connectors/connectorfactory.h"
#include "fleet/commanddesk.h"
#include "window/devicepage.h"
#include "window/theme.h"

#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QThread>

namespace {

struct Page {
    const char* file;
    DevicePage::View view;
    int tab; // of the device view
};

constexpr Page kPages[] = {
    {"energyline", DevicePage::DeviceView, 0}, {"rt-alarm", DevicePage::DeviceView, 1},
    {"detail", DevicePage::DeviceView, 2},     {"control", DevicePage::DeviceView, 3},
    {"chart", DevicePage::ChartView, 0},       {"table", DevicePage::TableView, 0},
};

constexpr QSize kDefaultSize(1024, 768);
constexpr int kLeastSide = 200;
constexpr int kMostSide = 8192;
// A chart of a single reading shows nothing.
constexpr int kChartReadings = 6;
constexpr unsigned long kBetweenReadingsMs = 200;

// Without a display Qt remarks on every window that its size hints reach no window manager.
void dropSizeHintRemarks(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (text != QLatin1String("This plugin does not support propagateSizeHints()"))
        fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

bool readSize(const QString& text, QSize& size)
{
    static const QRegularExpression pattern(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
    const auto match = pattern.match(text);
    if (!match.hasMatch())
        return false;
    size = {match.captured(1).toInt(), match.captured(2).toInt()};
    return size.width() >= kLeastSide && size.height() >= kLeastSide && size.width() <= kMostSide &&
           size.height() <= kMostSide;
}

} // namespace

int runPicture(const QStringList& arguments)
{
    CliParser parser(QStringLiteral("picture"));
    const QCommandLineOption out(QStringLiteral("out"), QStringLiteral("Folder for the pictures."),
                                 QStringLiteral("DIR"));
    const QCommandLineOption sizeOption(QStringLiteral("size"), QStringLiteral("Size in pixels."),
                                        QStringLiteral("WxH"), QStringLiteral("1024x768"));
    const QCommandLineOption themeOption(QStringLiteral("theme"), QStringLiteral("light or dark."),
                                         QStringLiteral("THEME"), QStringLiteral("light"));
    parser.addOptions({out, sizeOption, themeOption});
    if (!parser.read(arguments))
        return ExitUsage;

    QSize size = kDefaultSize;
    const QString theme = parser.value(themeOption);
    if (!parser.isSet(out) || !readSize(parser.value(sizeOption), size) ||
        (theme != QLatin1String("light") && theme != QLatin1String("dark"))) {
        parser.tellUsage(
            QCoreApplication::translate(
                "Picture",
                "a folder is needed, sides of %1 to %2 pixels, and a theme that there is")
                .arg(kLeastSide)
                .arg(kMostSide));
        return ExitUsage;
    }
    const auto settings = settingsForAddress(parser.positionalArguments().first());
    const QDir dir(parser.value(out));
    if (!settings)
        return ExitUsage;
    if (!dir.mkpath(QStringLiteral("."))) {
        printError(QCoreApplication::translate("Picture", "cannot make the folder %1")
                       .arg(dir.absolutePath()));
        return ExitUsage;
    }

    applyTheme(theme == QLatin1String("dark") ? Theme::Dark : Theme::Light);
    Fleet fleet(makeConnector); // holds no device: the pictures keep their own pace
    EventLog log;
    CommandDesk desk(fleet, log, [] { return CommandDesk::Operator{}; });
    Device device(*settings, makeConnector(*settings), FleetClock::system(), 0);
    DevicePage page(device, desk);
    qInstallMessageHandler(dropSizeHintRemarks);
    page.resize(size);
    page.setAttribute(Qt::WA_DontShowOnScreen);
    page.show();
    page.finishViews();
    page.showView(DevicePage::ChartView);
    QApplication::processEvents();
    for (int i = 0; i < kChartReadings; ++i) {
        pollOnce(device);
        page.refresh();
        page.grab(); // the charts keep no sample before they have been painted
        if (device.link() != LinkState::Live)
            break;
        QThread::msleep(kBetweenReadingsMs);
    }

    for (const Page& shown : kPages) {
        page.showView(shown.view);
        if (shown.view == DevicePage::DeviceView)
            page.showTab(shown.tab);
        page.refresh();
        QApplication::processEvents();
        const QString file = dir.filePath(QLatin1String(shown.file) + QStringLiteral(".png"));
        if (!page.grab().save(file)) {
            printError(QCoreApplication::translate("Picture", "cannot write %1").arg(file));
            return ExitUsage;
        }
        printOut(file);
    }
    return device.link() == LinkState::Live ? ExitOk : ExitNotReachable;
}

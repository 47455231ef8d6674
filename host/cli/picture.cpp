// upsdesk picture ADDRESS --out DIR: one PNG per page, with or without a display.
// May touch: the window room, the library's widgets, devices and their connectors.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/languageoption.h"
#include "cli/onepoll.h"
#include "cli/subcommands.h"
#include "connectors/factory/connectorfactory.h"
#include "datachart.h"
#include "fleet/commanddesk.h"
#include "msgbox.h"
#include "trendchart.h"
#include "window/devicepage.h"
#include "window/language.h"
#include "window/theme.h"

#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>

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

// For the pictures of single widgets: a gauge that both chart pages have, a text of the library's.
constexpr char kGauge[] = "widget_outload";
constexpr char kQuestion[] = "UPS Self-test for 10 seconds";
constexpr QSize kDefaultSize(1024, 768);
constexpr int kLeastSide = 200;
constexpr int kMostSide = 8192;
// A chart of a single reading shows nothing.
struct Pace {
    int readings;
    unsigned long betweenMs;
};
constexpr Pace kForPages{6, 200};
constexpr Pace kForWidgets{150, 20}; // a trend chart by itself is to be seen full

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

struct Wanted {
    QString address;
    QDir folder;
    QSize size = kDefaultSize;
    Theme theme = Theme::Light;
    LanguageChoice language = LanguageChoice::System;
    bool widgets = false; // a gauge, a trend and a prompt, too, each by itself
};

// Nothing after telling what is wrong with the arguments.
std::optional<Wanted> readWanted(const QStringList& arguments)
{
    CliParser parser(QStringLiteral("picture"));
    const QCommandLineOption out(QStringLiteral("out"), QStringLiteral("Folder for the pictures."),
                                 QStringLiteral("DIR"));
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Size in pixels."),
                                  QStringLiteral("WxH"), QStringLiteral("1024x768"));
    const QCommandLineOption theme(QStringLiteral("theme"), QStringLiteral("light or dark."),
                                   QStringLiteral("THEME"), QStringLiteral("light"));
    const LanguageOption language;
    const QCommandLineOption widgets(QStringLiteral("widgets"),
                                     QStringLiteral("Also a gauge, a trend and a prompt."));
    parser.addOptions({out, size, theme, language, widgets});
    if (!parser.read(arguments))
        return {};
    const auto spoken = language.choice(parser);
    if (!spoken)
        return {};
    const int chosen = QStringList{"light", "dark"}.indexOf(parser.value(theme));
    Wanted wanted{parser.positionalArguments().first(), QDir(parser.value(out))};
    wanted.language = *spoken;
    wanted.widgets = parser.isSet(widgets);
    wanted.theme = chosen > 0 ? Theme::Dark : Theme::Light;
    if (parser.isSet(out) && chosen >= 0 && readSize(parser.value(size), wanted.size))
        return wanted;
    parser.tellUsage(
        QCoreApplication::translate(
            "Picture", "a folder is needed, sides of %1 to %2 pixels, and a theme that there is")
            .arg(kLeastSide)
            .arg(kMostSide));
    return {};
}

// Enough readings for the charts to show a line; fewer from a device that is not live.
void fill(DevicePage& page, Device& device, const Pace& pace)
{
    for (int i = 0; i < pace.readings; ++i) {
        pollOnce(device);
        page.refresh();
        page.grab(); // the charts keep no sample before they have been painted
        if (device.link() != LinkState::Live)
            return;
        QThread::msleep(pace.betweenMs);
    }
}

// False after telling which picture could not be written.
bool save(QWidget* shown, const QDir& folder, const char* name)
{
    const QString file = folder.filePath(QLatin1String(name) + QStringLiteral(".png"));
    if (!shown || !shown->grab().save(file)) {
        printError(QCoreApplication::translate("Picture", "cannot write %1").arg(file));
        return false;
    }
    printOut(file);
    return true;
}

template <typename Widget>
Widget* visible(const DevicePage& page, const QString& name = {})
{
    const auto all = page.findChildren<Widget*>(name);
    const auto found =
        std::find_if(all.begin(), all.end(), [](Widget* w) { return w->isVisible(); });
    return found != all.end() ? *found : nullptr;
}

bool saveWidgets(DevicePage& page, const QDir& folder)
{
    page.showView(DevicePage::ChartView);
    QApplication::processEvents();
    MsgBox prompt(MSGBOX_STYLE_CHOISE, QCoreApplication::translate("SetInfoForm", kQuestion) + '?');
    return save(visible<DataChart>(page, QLatin1String(kGauge)), folder, "gauge") &&
           save(visible<TrendChart>(page), folder, "trend") && save(&prompt, folder, "prompt");
}

bool savePages(DevicePage& page, const QDir& folder)
{
    for (const Page& shown : kPages) {
        page.showView(shown.view);
        if (shown.view == DevicePage::DeviceView)
            page.showTab(shown.tab);
        page.refresh();
        QApplication::processEvents();
        if (!save(&page, folder, shown.file))
            return false;
    }
    return true;
}

} // namespace

int runPicture(const QStringList& arguments)
{
    const auto wanted = readWanted(arguments);
    const auto settings = wanted ? settingsForAddress(wanted->address) : std::nullopt;
    if (!settings)
        return ExitUsage;
    if (!wanted->folder.mkpath(QStringLiteral("."))) {
        printError(QCoreApplication::translate("Picture", "cannot make the folder %1")
                       .arg(wanted->folder.absolutePath()));
        return ExitUsage;
    }

    applyTheme(wanted->theme);
    if (wanted->language != LanguageChoice::System) // whoever reads the file need not be who asks
        language::apply(wanted->language);
    Fleet fleet(makeConnector); // holds no device: the pictures keep their own pace
    EventLog log;
    CommandDesk desk(fleet, log, [] { return CommandDesk::Operator{}; });
    Device device(*settings, makeConnector(*settings), FleetClock::system(), 0);
    DevicePage page(device, desk);
    qInstallMessageHandler(dropSizeHintRemarks);
    page.resize(wanted->size);
    page.setAttribute(Qt::WA_DontShowOnScreen);
    page.show();
    page.finishViews();
    page.showView(DevicePage::ChartView);
    QApplication::processEvents();
    fill(page, device, wanted->widgets ? kForWidgets : kForPages);
    if (!savePages(page, wanted->folder) || (wanted->widgets && !saveWidgets(page, wanted->folder)))
        return ExitUsage;
    return device.link() == LinkState::Live ? ExitOk : ExitNotReachable;
}

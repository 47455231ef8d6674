// What those hear and see who cannot use a mouse or see faint colours: every figure's accessible
// name has value and unit, Tab reaches what can be used, and text stands out in both themes.

#include "support/scriptedconnector.h"
#include "window/devicepage.h"
#include "window/theme.h"
#include "window/urgencycolors.h"

#include "datachart.h"
#include "energyline.h"
#include "trendchart.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QRegularExpression>
#include <QTableWidget>
#include <QtMath>
#include <QtTest>

#include <algorithm>

namespace {

// Contrast as WCAG 2 defines it.
double luminance(const QColor& color)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : qPow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}
double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return first > second ? first / second : second / first;
}

QString spoken(const QObject* object)
{
    const auto* told = QAccessible::queryAccessibleInterface(const_cast<QObject*>(object));
    return told ? told->text(QAccessible::Name) : QString();
}

// The colour that most of a picture has.
QColor groundOf(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return most == counts.cend() ? QColor() : QColor(most.key());
}

// A device with that many lines, on a page with all its views made.
struct Shown {
    explicit Shown(int lines)
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

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void figuresAreNamedWithUnits();
    void tabReachesWhatCanBeUsed();
    void textStandsOut();
};

void TestAccessibility::figuresAreNamedWithUnits()
{
    for (int lines : {1, 3}) {
        Shown shown(lines);
        for (int number = 0; number < DevicePage::pages().size(); ++number)
            shown.page->showPage(number); // each view learns its values when it is shown
        const QString voltage = lines == 3 ? "231/232/233 V" : "231 V";
        QVERIFY(spoken(shown.page->findChild<Energyline*>()).contains("Voltage: " + voltage));
        QStringList figures;
        for (const auto* label : shown.page->findChildren<QLabel*>("HeadingFigure"))
            figures << spoken(label);
        QCOMPARE(figures, QStringList({"Battery 87 %", "Lasts 21 min", "Load 34 %"}));
        static const QRegularExpression gauge("^.+: (--|[0-9.]+ (%|C|Hz|V|A))$");
        for (const auto* chart : shown.page->findChildren<DataChart*>())
            QVERIFY2(gauge.match(spoken(chart)).hasMatch(), qPrintable(spoken(chart)));
        for (const auto* chart : shown.page->findChildren<TrendChart*>())
            QVERIFY(!spoken(chart).isEmpty());
        auto* table = shown.page->findChild<QTableWidget*>("tableWidget");
        auto* cells = QAccessible::queryAccessibleInterface(table)->tableInterface();
        QVERIFY(cells->cellAt(9, 2)->text(QAccessible::Name).contains("(V): 231"));
        for (const auto* value : shown.page->findChildren<QLabel*>("PanalBodyKeyValue"))
            QVERIFY(!spoken(value).isEmpty());
    }
}

void TestAccessibility::tabReachesWhatCanBeUsed()
{
    for (int number = 0; number < DevicePage::pages().size(); ++number) {
        Shown shown(1);
        shown.page->showPage(number);
        shown.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown.window));
        QSet<QWidget*> reached;
        shown.page->findChild<QWidget*>("ViewTabs")->setFocus();
        for (QTest::keyClick(&shown.window, Qt::Key_Tab);
             qApp->focusWidget() && !reached.contains(qApp->focusWidget());
             QTest::keyClick(qApp->focusWidget(), Qt::Key_Tab)) {
            QWidget* focus = qApp->focusWidget();
            reached << focus;
            QVERIFY(focus->isVisible());
        }
        QVERIFY(reached.contains(shown.page->findChild<QWidget*>("ViewTabs")));
        QVERIFY2(reached.contains(shown.page->findChild<QWidget*>("HeadingNotes")),
                 qPrintable(QString::number(number)));
    }
}

void TestAccessibility::textStandsOut()
{
    constexpr double enough = 4.5;
    for (Theme theme : {Theme::Light, Theme::Dark}) {
        applyTheme(theme);
        const QPalette palette = qApp->palette();
        for (auto role : {QPalette::Window, QPalette::Base}) {
            const QColor ground = palette.color(role);
            const QColor text = palette.color(QPalette::Text);
            QVERIFY(contrast(fadedColor(text, ground), ground) >= enough);
            for (int urgency = 0; urgency <= static_cast<int>(Urgency::Critical); ++urgency) {
                const auto u = static_cast<Urgency>(urgency);
                QVERIFY(contrast(Qt::white, urgencyColor(u)) >= enough);
                QVERIFY(contrast(urgencyTextColor(u, palette), ground) >= enough);
            }
        }
        for (int lines : {1, 3}) {
            Shown shown(lines);
            for (int number = 0; number < DevicePage::pages().size(); ++number) {
                shown.page->showPage(number);
                shown.page->refresh();
                const QImage picture = shown.page->grab().toImage();
                for (const auto* label : shown.page->findChildren<QLabel*>()) {
                    if (!label->isVisible() || !label->isEnabled() || label->text().isEmpty())
                        continue;
                    const QRect place(label->mapTo(shown.page, QPoint()), label->size());
                    const QColor ground = groundOf(picture.copy(place & picture.rect()));
                    const QColor text = label->palette().color(label->foregroundRole());
                    QVERIFY2(!ground.isValid() || contrast(text, ground) >= enough,
                             qPrintable(label->text() + ' ' + text.name() + ' ' + ground.name()));
                }
            }
        }
    }
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"

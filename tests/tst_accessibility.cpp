// What those hear and see who cannot use a mouse or see faint colours: every figure's accessible
// name has value and unit, Tab reaches what can be used, and text stands out in both themes.

#include "support/quietplatform.h"
#include "support/recordingdevice.h"
#include "support/shownwindows.h"
#include "window/theme.h"
#include "window/urgencycolors.h"

#include "datachart.h"
#include "energyline.h"
#include "trendchart.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
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

// Down the form, and along a row; up only to a column further right. In what holds both: a form may
// have scrolled meanwhile.
bool goesAgainstTheEye(const QWidget* from, const QWidget* to)
{
    const QWidget* form = from->parentWidget();
    while (!form->isAncestorOf(to))
        form = form->parentWidget();
    const QRect before(from->mapTo(form, QPoint()), from->size());
    const QRect after(to->mapTo(form, QPoint()), to->size());
    const bool up = after.bottom() <= before.top();
    const bool sameRow = !up && after.top() < before.bottom();
    return up ? after.left() < before.right() : sameRow && after.right() <= before.left();
}

constexpr QSize kSmallest(683, 480); // 1024x768 at 150 %, less the title

// By Tab, from where the window puts the focus, until it comes round: what is wrong on the way.
QString faultOfTabbing(QWidget* window, const QSize& largest = kSmallest)
{
    window->show();
    window->resize(window->size().boundedTo(largest));
    if (window->size() != window->size().boundedTo(largest))
        return "too large";
    window->activateWindow();
    if (!QTest::qWaitFor([window] { return qApp->activeWindow() == window; }))
        return "not active";
    if (!window->isAncestorOf(qApp->focusWidget()))
        QTest::keyClick(window, Qt::Key_Tab);
    QVector<QWidget*> order;
    int comesRound = 0;
    for (QWidget* focus = qApp->focusWidget();
         window->isAncestorOf(focus) && !order.contains(focus); focus = qApp->focusWidget()) {
        const QString where =
            QString(" at ") + focus->metaObject()->className() + ' ' + focus->objectName();
        if (spoken(focus).isEmpty())
            return "no name" + where;
        if (!window->rect().contains({focus->mapTo(window, QPoint()), focus->size()}))
            return "cut off" + where;
        // Once it may come round to what stands before the first: a box begins at its Cancel.
        if (!order.isEmpty() && goesAgainstTheEye(order.last(), focus) &&
            (comesRound++ || !goesAgainstTheEye(order.first(), focus)))
            return "out of order" + where;
        order << focus;
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    return order.size() > 1 ? QString() : "leads nowhere";
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { dropRemarksOfThePlatform(); }
    void figuresAreNamedWithUnits();
    void tabReachesWhatCanBeUsed();
    void tabFollowsTheEye();
    void devicesAreToldWhole();
    void textStandsOut();
    void paintedTextStandsOut();
};

void TestAccessibility::figuresAreNamedWithUnits()
{
    for (int lines : {1, 3}) {
        ShownDevice shown(lines);
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
        ShownDevice shown(1);
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

void TestAccessibility::tabFollowsTheEye()
{
    AllWindows windows;
    for (int number = 0; number < windows.count(); ++number) {
        QWidget* window = windows.at(number);
        QCOMPARE(window->windowTitle() + ": " + faultOfTabbing(window),
                 window->windowTitle() + ": ");
        if (number > 0)
            window->close();
    }
    for (const QAction* menu : windows.window.menuBar()->actions()) // or Alt opens neither
        for (QLabel* label : windows.window.centralWidget()->findChildren<QLabel*>())
            QVERIFY2(!label->buddy() || QKeySequence::mnemonic(label->text()) !=
                                            QKeySequence::mnemonic(menu->text()),
                     qPrintable(label->text()));
    windows.window.openDevice(windows.fleet.at(0)); // a page that came after all the rest
    windows.window.currentPage()->finishViews();
    const QSize large(1280, 1000);
    windows.window.resize(large);
    for (int page = 0; page < DevicePage::pages().size(); ++page) {
        windows.window.currentPage()->showPage(page);
        QCOMPARE(QString::number(page) + faultOfTabbing(&windows.window, large),
                 QString::number(page));
    }
}

void TestAccessibility::devicesAreToldWhole()
{
    ShownDesk desk;
    for (const char* name : {"DeviceList", "OverviewTiles"}) {
        auto* view = QAccessible::queryAccessibleInterface(
            desk.window.findChild<QAbstractItemView*>(QLatin1String(name)));
        QStringList told;
        for (int row = 0; row < view->childCount(); ++row)
            told << view->child(row)->text(QAccessible::Name);
        told.sort();
        QCOMPARE(told.size(), 3);
        QVERIFY(told[0].startsWith("Alpha, On mains, Battery 87 %, Lasts 21 min, Load --, live"));
        QVERIFY(told[1].startsWith("Beta, On battery, little time left, Battery 12 %"));
        QVERIFY(told[2].startsWith("Gamma, No answer, no answer"));
    }
}

void TestAccessibility::paintedTextStandsOut()
{
    constexpr double enough = 4.5;
    QStringList faint;
    for (Theme theme : {Theme::Light, Theme::Dark}) {
        applyTheme(theme);
        AllWindows windows;
        for (int number = 0; number < windows.count(); ++number) {
            QWidget* window = windows.at(number);
            window->show();
            QCoreApplication::processEvents();
            const QImage picture = window->grab().toImage();
            RecordingDevice recorder(window->size());
            window->render(&recorder, QPoint(), QRegion(), QWidget::DrawChildren);
            for (const PaintStep& step : recorder.stepsOf(PaintStep::Text)) {
                const QPoint start = step.transform.map(step.points[0]).toPoint();
                const int height = QFontMetrics(step.font).ascent();
                const QRect place(start.x(), start.y() - height, qRound(step.width), height);
                const QRect around = place.adjusted(-3, -2, 3, 2); // an "i" is but ink
                const QWidget* owner = window->childAt(place.center());
                if (step.text.trimmed().isEmpty() || (owner && !owner->isEnabled()))
                    continue;
                const QColor ground = groundOf(picture.copy(around & picture.rect()));
                QColor text = step.pen.color();
                const double share = text.alphaF();
                text.setRgbF(text.redF() * share + ground.redF() * (1 - share),
                             text.greenF() * share + ground.greenF() * (1 - share),
                             text.blueF() * share + ground.blueF() * (1 - share));
                if (ground.isValid() && contrast(text, ground) < enough)
                    faint << window->windowTitle() + ": " + step.text + ' ' + text.name() + " on " +
                                 ground.name();
            }
        }
    }
    QCOMPARE(faint.join('\n'), QString());
}

void TestAccessibility::textStandsOut()
{
    constexpr double enough = 4.5;
    for (Theme theme : {Theme::Light, Theme::Dark}) {
        applyTheme(theme);
        const QPalette palette = qApp->palette();
        for (auto role : {QPalette::Window, QPalette::Base}) {
            const QColor& ground = palette.color(role);
            const QColor& text = palette.color(QPalette::Text);
            QVERIFY(contrast(fadedColor(text, ground), ground) >= enough);
            for (int urgency = 0; urgency <= static_cast<int>(Urgency::Critical); ++urgency) {
                const auto u = static_cast<Urgency>(urgency);
                QVERIFY(contrast(Qt::white, urgencyColor(u)) >= enough);
                QVERIFY(contrast(urgencyTextColor(u, palette), ground) >= enough);
            }
        }
        for (int lines : {1, 3}) {
            ShownDevice shown(lines);
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

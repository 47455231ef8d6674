// What the window shows of one device: each page gets its own units, what is not live is covered,
// the right to command follows the operator, and a command reaches the connector.

#include "fleet/commanddesk.h"
#include "support/scriptedconnector.h"
#include "window/controlnotice.h"
#include "window/devicelistmodel.h"
#include "window/devicepage.h"
#include "window/devicesortmodel.h"
#include "window/devicesummary.h"
#include "window/linkband.h"
#include "window/linkcover.h"
#include "window/logindialog.h"
#include "window/mainwindow.h"
#include "window/overviewpage.h"

#include "childform.h"
#include "energyline.h"
#include "msgbox.h"
#include "rateinfoform.h"
#include "rteventform.h"
#include "setinfoform.h"
#include "support/recordingdevice.h"

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

#include <climits>
#include <cmath>

namespace {

UpsReading onMains()
{
    UpsReading reading;
    reading.outputSource = OutputSource::Utility;
    reading.batteryState = BatteryState::Normal;
    reading.charge = 87;
    reading.runtime = 21 * 60;
    reading.input.lines = 1;
    reading.output.lines = 1;
    reading.output.power[0] = 1500;
    reading.output.load[0] = 34;
    return reading;
}

struct Desk {
    QVector<ScriptedConnector*> connectors;
    Fleet fleet{[this](const DeviceSettings&) {
        auto connector = std::make_unique<ScriptedConnector>();
        connectors << connector.get();
        return connector;
    }};
    EventLog log;
    CommandDesk::Operator who;
    CommandDesk commands{fleet, log, [this] { return who; }};

    Device& add(const QString& address, const QString& name = QString(),
                const QString& group = QString())
    {
        DeviceSettings settings;
        settings.group = group;
        settings.address = *parseDeviceAddress(address).address;
        settings.name = name;
        return *fleet.add(settings);
    }
    void answer(int device, const UpsReading& reading)
    {
        connectors[device]->answer(LinkState::Live, reading);
    }
};

// A page within a window that takes no size hints from it: the offscreen platform remarks on them.
struct ShownPage {
    ShownPage(Device& device, CommandDesk& desk)
        : page(new DevicePage(device, desk, &window))
    {
        window.resize(1024, 768);
        page->resize(window.size());
        window.show();
        page->finishViews();
    }
    DevicePage* operator->() const { return page; }

    QWidget window;
    DevicePage* page;
};

QStringList paintedTexts(QWidget* widget)
{
    RecordingDevice recorder(widget->size());
    widget->render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
    return recorder.texts();
}

QStringList labelTexts(const QWidget* widget)
{
    QStringList texts;
    for (const QLabel* label : widget->findChildren<QLabel*>())
        texts << label->text();
    return texts;
}

} // namespace

class TestDevicePage : public QObject
{
    Q_OBJECT

private slots:
    void eachPageGetsItsUnits();
    void notLiveIsCovered();
    void levelFollowsTheOperator();
    void confirmedCommandReachesTheConnector();
    void hostileReadingIsShownAsText();
    void listFiltersAndSorts();
    void groupsAreSections();
    void removedDeviceLeavesNoPage();
    void wallDisplayCommandsNothing();
    void loginNeedsTheRightPassword();
    void words();
};

void TestDevicePage::eachPageGetsItsUnits()
{
    Desk desk;
    Device& device = desk.add("nut://h/u");
    ShownPage page(device, desk.commands);
    desk.answer(0, onMains());
    page->refresh();
    QVERIFY(paintedTexts(page->findChild<Energyline*>()).contains("2 KW"));
    page->showTab(2);
    QVERIFY(labelTexts(page->findChild<RateInfoForm*>()).contains("1500 W"));
}

void TestDevicePage::notLiveIsCovered()
{
    Desk desk;
    Device& device = desk.add("nut://h/u");
    ShownPage page(device, desk.commands);
    auto* cover = page->findChild<LinkCover*>();
    const auto* band = page->findChild<LinkBand*>();
    const auto* table = page->findChild<RTEventForm*>()->findChild<QTableWidget*>();
    QVERIFY(cover->isVisible()); // nothing is known yet
    page->showTab(1);
    for (LinkState state :
         {LinkState::Live, LinkState::Stale, LinkState::Lost, LinkState::Refused}) {
        const bool covered = state != LinkState::Live;
        desk.connectors[0]->answer(state, onMains(), "the driver is gone");
        page->refresh();
        QCOMPARE(cover->isVisible(), covered);
        QCOMPARE(band->isVisible(), covered);
        QVERIFY(!covered || labelTexts(band).join(' ').contains("the driver is gone"));
        QVERIFY(!covered || cover->size() == cover->parentWidget()->size());
        // The last good values stay readable, and the alarm page says that they are old.
        QCOMPARE(table->rowCount(), covered ? 1 : 0);
    }
    page->showView(DevicePage::ChartView);
    page->showView(DevicePage::DeviceView);
    QCOMPARE(cover->parent()->children().last(), cover); // nothing lies above it
}

void TestDevicePage::levelFollowsTheOperator()
{
    Desk desk;
    Device& real = desk.add("nut://h/u");
    Device& simulated = desk.add("sim:");
    DevicePage realPage(real, desk.commands);
    DevicePage simulatedPage(simulated, desk.commands);
    for (DevicePage* page : {&realPage, &simulatedPage})
        page->finishViews();
    QVERIFY(!realPage.findChild<SetInfoForm*>()->isEnabled());
    QVERIFY(simulatedPage.findChild<SetInfoForm*>()->isEnabled());
    realPage.showTab(3);
    realPage.refreshOperator();
    const auto* notice = realPage.findChild<ControlNotice*>();
    QVERIFY(!notice->isHidden() && labelTexts(notice).join(' ').contains("logged in"));
    QSignalSpy wanted(&desk.commands, &CommandDesk::logInWanted);
    notice->findChild<QPushButton*>()->click();
    QCOMPARE(wanted.size(), 1);
    desk.who = {"anna", 1};
    realPage.refreshOperator();
    QVERIFY(notice->isHidden());
    QVERIFY(realPage.findChild<SetInfoForm*>()->isEnabled());
}

void TestDevicePage::confirmedCommandReachesTheConnector()
{
    Desk desk;
    Device& device = desk.add("sim:", "Rack 3");
    DevicePage page(device, desk.commands);
    page.finishViews();
    QTimer::singleShot(0, [] {
        if (auto* box = qobject_cast<MsgBox*>(QApplication::activeModalWidget()))
            box->accept();
    });
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("on_DevTest_OK_clicked.*"));
    page.findChild<SetInfoForm*>()->findChild<QPushButton*>("btnWhite")->click();
    QCOMPARE(desk.connectors[0]->sent.size(), 1);
    QCOMPARE(desk.connectors[0]->sent.first().kind, CommandKind::SelfTest);
    QCOMPARE(desk.log.at(0).device, QStringLiteral("Rack 3"));
}

void TestDevicePage::hostileReadingIsShownAsText()
{
    UpsReading hostile = onMains();
    const QString text = QStringLiteral("<img src=x><b>%s%n%1</b>") + QString(100000, 'x');
    for (QString UpsReading::*field :
         {&UpsReading::model, &UpsReading::manufacturer, &UpsReading::name})
        hostile.*field = text;
    hostile.notes = QStringList{text};
    hostile.alarmTexts = QStringList{text};
    hostile.charge = std::nan("");
    hostile.runtime = 1e300;
    hostile.output.power[0] = INFINITY;
    hostile.output.load[0] = -INFINITY;
    Desk desk;
    Device& device = desk.add("nut://h/u");
    ShownPage page(device, desk.commands);
    desk.answer(0, hostile);
    for (int tab = 0; tab < 4; ++tab) {
        page->showTab(tab);
        page->refresh();
        page->grab(); // paints
    }
    for (const QLabel* label : page->findChildren<QLabel*>())
        QVERIFY(label->textFormat() == Qt::PlainText || !label->text().contains("<img"));
    QVERIFY(page->width() <= 1024);
}

void TestDevicePage::listFiltersAndSorts()
{
    Desk desk;
    desk.add("nut://h/a", "Alpha");
    desk.add("nut://h/b", "Beta");
    desk.add("nut://h/c", "Gamma");
    UpsReading onBattery = onMains();
    onBattery.outputSource = OutputSource::Battery;
    desk.answer(0, onMains());
    desk.answer(1, onBattery);
    desk.answer(2, onMains());
    DeviceListModel model(desk.fleet);
    DeviceSortModel sorted;
    sorted.setSourceModel(&model);
    const auto names = [&] {
        QStringList names;
        for (int row = 0; row < sorted.rowCount(); ++row)
            names << sorted.index(row, 0).data().toString();
        return names;
    };
    QCOMPARE(names(), QStringList({"Alpha", "Beta", "Gamma"}));
    sorted.setOrder(DeviceSortModel::Order::WorstFirst);
    QCOMPARE(names(), QStringList({"Beta", "Alpha", "Gamma"}));
    desk.connectors[2]->answer(LinkState::Lost);
    desk.answer(1, onMains());
    QTRY_COMPARE(names(), QStringList({"Gamma", "Alpha", "Beta"}));
    sorted.setFilterFixedString("bet");
    QCOMPARE(names(), QStringList({"Beta"}));
    sorted.setFilterFixedString("no answer");
    QCOMPARE(names(), QStringList({"Gamma"}));
    QCOMPARE(model.countsText(), QString::fromUtf8("1\u00a0alarm  \u00b7  2\u00a0normal"));
}

void TestDevicePage::groupsAreSections()
{
    Desk desk;
    desk.add("nut://h/a", "Alpha", "South");
    desk.add("nut://h/b", "Beta");
    desk.add("nut://h/c", "Gamma", "North");
    desk.add("nut://h/d", "Delta", "South");
    DeviceListModel model(desk.fleet);
    DeviceSortModel sorted;
    sorted.setSourceModel(&model);
    const auto rows = [&] {
        QStringList rows;
        for (int row = 0; row < sorted.rowCount(); ++row)
            rows << QString(sorted.startsSection(sorted.index(row, 0)) ? "# " : "") +
                        sorted.index(row, 0).data().toString();
        return rows;
    };
    QCOMPARE(rows(), QStringList({"Beta", "# Gamma", "# Alpha", "Delta"}));

    QWidget window;
    OverviewPage overview(model, &window);
    overview.showGroups(true);
    window.resize(900, 700);
    overview.resize(window.size());
    window.show();
    const auto* tiles = overview.findChild<QListView*>();
    const auto tile = [&](int row) { return tiles->visualRect(tiles->model()->index(row, 0)); };
    for (int row : {1, 2}) // each begins a section: below the row before, with room for its name
        QTRY_VERIFY(tile(row).left() == tile(0).left() &&
                    tile(row).top() > tile(row - 1).bottom() + tiles->fontMetrics().height());
    QCOMPARE(tile(3).top(), tile(2).top());
    overview.showGroups(false);
    QTRY_COMPARE(tile(1).top(), tile(0).top());

    sorted.setFilterFixedString("south");
    QCOMPARE(rows(), QStringList({"# Alpha", "Delta"}));
    sorted.setOrder(DeviceSortModel::Order::WorstFirst);
    QCOMPARE(rows(), QStringList({"Alpha", "Delta"}));
}

void TestDevicePage::removedDeviceLeavesNoPage()
{
    Desk desk;
    desk.add("sim:", "one");
    desk.add("sim:", "two");
    OperatorSession session;
    MainWindow window(desk.fleet, desk.commands, desk.log, session);
    window.openDevice(desk.fleet.at(0));
    QVERIFY(window.currentPage());
    QCOMPARE(window.findChildren<DevicePage*>().size(), 1); // made when opened, not before
    desk.fleet.remove(0);
    QVERIFY(window.findChildren<DevicePage*>().size() <= 1);
    for (DevicePage* page : window.findChildren<DevicePage*>())
        QCOMPARE(page->device().name(), QStringLiteral("two"));
}

void TestDevicePage::wallDisplayCommandsNothing()
{
    Desk desk;
    desk.who = {"anna", 5};
    Device& device = desk.add("sim:");
    OperatorSession session;
    MainWindow window(desk.fleet, desk.commands, desk.log, session, MainWindow::Mode::Kiosk);
    window.openDevice(&device);
    window.currentPage()->finishViews();
    QVERIFY(!window.currentPage()->findChild<SetInfoForm*>()->isEnabled());
    desk.commands.post(&device, 1003, {});
    QVERIFY(desk.connectors[0]->sent.isEmpty());
    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.currentPage()); // back to all devices
}

void TestDevicePage::loginNeedsTheRightPassword()
{
    OperatorSession session;
    const HashLimits quick = HashLimits::minimal();
    OperatorAccount anna;
    anna.name = "anna";
    anna.level = 1;
    anna.hash = hashPassword(SecretText(QString("correct horse")), quick);
    session.setOperators(Operators({anna}, quick));
    LoginDialog dialog(session, session.hasOperators());
    const auto logIn = [&](const QString& password) {
        dialog.findChild<QLineEdit*>("LoginName")->setText("anna");
        dialog.findChild<QLineEdit*>("LoginPassword")->setText(password);
        dialog.findChild<QPushButton*>("LoginAccept")->click();
    };
    QSignalSpy refused(&session, &OperatorSession::refused);
    logIn("wrong horse");
    QTRY_COMPARE(refused.size(), 1);
    QVERIFY(!session.isLoggedIn());
    QVERIFY(dialog.findChild<QLineEdit*>("LoginPassword")->text().isEmpty());
    logIn("correct horse");
    QTRY_COMPARE(session.level(), 1);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestDevicePage::words()
{
    const std::pair<qint64, const char*> rows[] = {
        {-1, ""},         {999, "now"},           {59999, "59 s"},
        {60000, "1 min"}, {7500000, "2 h 5 min"}, {259200000, "3 days"}};
    for (const auto& [ageMs, text] : rows)
        QCOMPARE(ageText(ageMs), QString(text));
}

QTEST_MAIN(TestDevicePage)
#include "tst_devicepage.moc"

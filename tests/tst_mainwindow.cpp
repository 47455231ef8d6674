// The window around the devices: what is kept and remembered, what the menu does, how the first run
// ends, and that opening a page waits for nothing.

#include "fleet/commanddesk.h"
#include "support/quietplatform.h"
#include "support/scriptedconnector.h"
#include "window/deskmenu.h"
#include "window/devicepage.h"
#include "window/eventdock.h"
#include "window/firstrunstrip.h"
#include "window/mainwindow.h"
#include "window/pagestack.h"

#include "childform.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

namespace {

struct Desk {
    Device* add(const QString& address, const QString& name = QString())
    {
        DeviceSettings settings;
        settings.address = *parseDeviceAddress(address).address;
        settings.name = name;
        return fleet.add(settings);
    }
    QAction* item(DeskMenu::Item item) const { return window.findChild<DeskMenu*>()->action(item); }
    QString shown() const
    {
        return window.currentPage() ? window.currentPage()->device().name() : QString();
    }

    QVector<ScriptedConnector*> connectors;
    Fleet fleet{[this](const DeviceSettings&) {
        auto connector = std::make_unique<ScriptedConnector>();
        connectors << connector.get();
        return connector;
    }};
    EventLog log;
    CommandDesk commands{fleet, log, [] { return CommandDesk::Operator{}; }};
    OperatorSession session;
    MainWindow window{fleet, commands, log, session};
};

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void viewsComeWhenAPageIsOnShow();
    void latestPagesAreKept();
    void pageStaysWithTheNextDevice();
    void firstRunEnds_data();
    void firstRunEnds();
    void stateIsRemembered();
    void eventsStayClosed();
    void menuActs();
    void allTilesFindRoom();
    void wallIsReadFromAfar();
};

void TestMainWindow::initTestCase()
{
    dropRemarksOfThePlatform();
}

void TestMainWindow::viewsComeWhenAPageIsOnShow()
{
    Desk desk;
    desk.window.show();
    desk.window.openDevice(desk.add("nut://h/a"));
    DevicePage* left = desk.window.currentPage();
    QVERIFY(!left->findChild<ChildForm*>()); // the heading is there before anything has been built
    desk.window.openDevice(desk.add("nut://h/b"));
    QTRY_VERIFY(desk.window.currentPage()->findChild<ChildForm*>());
    QVERIFY(!left->findChild<ChildForm*>()); // one that was only passed costs nothing
}

void TestMainWindow::latestPagesAreKept()
{
    Desk desk;
    for (int i = 0; i < PageStack::kMostPages + 2; ++i)
        desk.add("nut://h/u" + QString::number(i));
    const auto open = [&desk](int device) { desk.window.openDevice(desk.fleet.at(device)); };
    for (int i = 0; i < PageStack::kMostPages; ++i)
        open(i);
    DevicePage* second = desk.window.findChild<PageStack*>()->kept().at(PageStack::kMostPages - 2);
    open(0); // looked at again: now the second is the oldest
    QPointer<DevicePage> oldest(second);
    open(PageStack::kMostPages);
    QTRY_VERIFY(!oldest);
    QCOMPARE(desk.window.findChildren<DevicePage*>().size(), int(PageStack::kMostPages));
    QCOMPARE(desk.shown(), "u" + QString::number(PageStack::kMostPages));
}

void TestMainWindow::pageStaysWithTheNextDevice()
{
    Desk desk;
    Device* a = desk.add("nut://h/a");
    Device* b = desk.add("nut://h/b");
    desk.window.openDevice(a);
    desk.window.openDevice(b);
    for (int page = 0; page < DevicePage::pages().size(); ++page) {
        desk.window.currentPage()->showPage(page);
        desk.window.openDevice(page % 2 ? b : a);
        QCOMPARE(desk.window.currentPage()->currentPage(), page);
        desk.window.currentPage()->finishViews();
        QCOMPARE(desk.window.currentPage()->currentPage(), page);
    }
}

void TestMainWindow::firstRunEnds_data()
{
    QTest::addColumn<QString>("added");
    QTest::addColumn<bool>("ends");
    QTest::newRow("a real device: the simulation goes") << "nut://h/a" << true;
    QTest::newRow("a simulated one, on purpose: both stay") << "sim:outage" << false;
}

void TestMainWindow::firstRunEnds()
{
    QFETCH(QString, added);
    QFETCH(bool, ends);
    Desk desk;
    desk.window.setSimulation(desk.add("sim:"));
    const auto* strip = desk.window.findChild<FirstRunStrip*>();
    QVERIFY(!strip->isHidden());
    desk.add(added);
    QCoreApplication::processEvents();
    QCOMPARE(strip->isHidden(), ends);
    QCOMPARE(desk.fleet.count(), ends ? 1 : 2);
    while (desk.fleet.count() > 0)
        desk.fleet.remove(0);
    QCoreApplication::processEvents();
    QVERIFY(!strip->isHidden()); // nothing to watch: the way to a device is offered again
}

void TestMainWindow::stateIsRemembered()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk/window.ini");
    const QString name = QString::fromUtf8("R\u00e4ck \"3\"; a=b");
    QSize size;
    {
        Desk desk;
        desk.add("nut://h/a");
        desk.window.openDevice(desk.add("nut://h/b", name));
        desk.window.setWindowState(Qt::WindowNoState);
        desk.window.resize(700, 500);
        size = desk.window.size();
        desk.window.currentPage()->showPage(4);
        desk.item(DeskMenu::ShowList)->setChecked(false);
        desk.item(DeskMenu::ShowEvents)->setChecked(false);
        desk.window.state().save(path);
    }
    Desk desk;
    desk.add("nut://h/b", name);
    desk.window.restore(WindowState::load(path));
    QCOMPARE(desk.window.size(), size);
    QCOMPARE(desk.shown(), name);
    QCOMPARE(desk.window.currentPage()->currentPage(), 4);
    QVERIFY(!desk.item(DeskMenu::ShowList)->isChecked());
    QVERIFY(!desk.item(DeskMenu::ShowEvents)->isChecked());

    QFile file(path); // somebody else's file: everything as on the first day
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("page=99999999999\ngeometry=@ByteArray(\\x1\\x2)\nlist=perhaps\n\xff\xfe");
    file.close();
    Desk other;
    other.window.restore(WindowState::load(path));
    QVERIFY(other.window.width() <= 1240);
}

void TestMainWindow::eventsStayClosed()
{
    Desk desk;
    desk.window.show();
    auto* dock = desk.window.findChild<EventDock*>();
    QVERIFY(!dock->isVisible());
    desk.log.append({});
    QVERIFY(dock->isVisible());
    dock->close();
    QVERIFY(!desk.item(DeskMenu::ShowEvents)->isChecked());
    desk.log.append({});
    QVERIFY(!dock->isVisible());
    desk.item(DeskMenu::ShowEvents)->trigger();
    QVERIFY(dock->isVisible());
}

void TestMainWindow::menuActs()
{
    Desk desk;
    desk.window.show();
    Device* device = desk.add("nut://h/a");
    QVERIFY(!desk.item(DeskMenu::PollNow)->isEnabled());
    desk.window.openDevice(device);
    desk.connectors[0]->answer(LinkState::Live);
    const int polls = desk.connectors[0]->polls;
    desk.item(DeskMenu::PollNow)->trigger();
    QTRY_COMPARE(desk.connectors[0]->polls, polls + 1);

    desk.item(DeskMenu::TestConnection)->trigger();
    QCOMPARE(desk.connectors.size(), 2);
    desk.connectors[1]->answer(LinkState::Refused, {}, "unknown <b>UPS</b>");
    bool told = false;
    for (const QLabel* label : desk.window.findChildren<QLabel*>())
        told |=
            label->text().endsWith(": unknown <b>UPS</b>") && label->textFormat() == Qt::PlainText;
    QVERIFY(told);

    for (const QMenu* menu : desk.window.findChild<DeskMenu*>()->findChildren<QMenu*>())
        QVERIFY2(!menu->isEmpty(), qPrintable(menu->title()));

    desk.item(DeskMenu::ShowList)->setChecked(false);
    desk.item(DeskMenu::Filter)->trigger(); // brings the list back
    auto* filter = desk.window.findChild<QLineEdit*>("FilterEdit");
    QVERIFY(filter->isVisible());
    QCOMPARE(desk.window.focusWidget(), filter);
    desk.window.findChild<QListView*>("DeviceList")->setFocus();
    desk.item(DeskMenu::Copy)->trigger();
    QVERIFY(QGuiApplication::clipboard()->text().startsWith("a, "));

    desk.item(DeskMenu::Commands)->trigger();
    QCOMPARE(desk.window.currentPage()->currentPage(), DevicePage::controlPage());
    desk.item(DeskMenu::AllDevices)->trigger();
    QVERIFY(!desk.window.currentPage());
    const auto* tiles = desk.window.findChild<QListView*>("OverviewTiles");
    for (const QString& text : {QString("zzz"), QString()}) {
        filter->setText(text);
        QTRY_COMPARE(tiles->isVisible(), text.isEmpty()); // or the note that nothing matches
    }
    QTRY_VERIFY(!filter->findChild<QToolButton*>()->isVisible()); // has faded: outlives the window
}

void TestMainWindow::allTilesFindRoom()
{
    Desk desk;
    desk.window.setWindowState(Qt::WindowNoState);
    desk.window.resize(1024, 700);
    desk.window.show();
    const auto* tiles = desk.window.findChild<QListView*>("OverviewTiles");
    int before = QWIDGETSIZE_MAX;    // px
    for (int count : {1, 12, 100}) { // each in a form with less in it
        while (desk.fleet.count() < count)
            desk.add("nut://h/a");
        const auto last = [&] { return tiles->visualRect(tiles->model()->index(count - 1, 0)); };
        QTRY_VERIFY(!last().isEmpty() && tiles->viewport()->rect().contains(last()));
        QVERIFY(last().height() < before * 3 / 4);
        before = last().height();
    }
}

void TestMainWindow::wallIsReadFromAfar()
{
    Desk desk;
    desk.add("nut://h/a");
    MainWindow wall(desk.fleet, desk.commands, desk.log, desk.session, MainWindow::Mode::Kiosk);
    wall.show();
    QVERIFY(QTime::fromString(wall.findChild<QLabel*>("WallClock")->text(), "HH:mm").isValid());
    QCOMPARE(wall.findChildren<QLabel*>("WallCount").size(), 1);
    const auto* tiles = wall.findChild<QListView*>("OverviewTiles");
    QVERIFY(tiles->sizeHintForRow(0) > 186); // px, of a full tile at a desk
    QVERIFY(!tiles->hasFocus());
    while (desk.fleet.count() < 400)
        desk.add("nut://h/a");
    QTRY_VERIFY(tiles->verticalScrollBar()->maximum() > 0); // rather than small: the pages turn
    QTRY_COMPARE_WITH_TIMEOUT(wall.cursor().shape(), Qt::BlankCursor, 30000);
    QTest::mouseMove(&wall, {50, 50});
    QTRY_COMPARE(wall.cursor().shape(), Qt::ArrowCursor);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"

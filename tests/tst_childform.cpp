// The container: routing of snapshots, names, levels and commands. Touches only public operations
// and the widget tree.

#include "childform.h"
#include "e_event.h"
#include "setinfoform.h"

#include <QScrollArea>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

class TestChildForm : public QObject
{
    Q_OBJECT

private slots:
    void publishedNumbers();
    void tabsInOrder();
    void topLevelWhateverTheParent();
    void levelGatesControlPage_data();
    void levelGatesControlPage();
    void commandsPassUnchanged();
};

void TestChildForm::publishedNumbers()
{
    QCOMPARE(int(realdata_Reserve5), 72);
    QCOMPARE(int(alarm_TH4_Hum_Hi), 2054);
    QCOMPARE(int(alarm_cloud_connect_falil), 2067);
    QCOMPARE(int(info_ipAddr), 4014);
    QCOMPARE(int(eEvent_control_remote_shutdown), 1044);
    QCOMPARE(int(eEvent_searchResult), 2025);
}

void TestChildForm::tabsInOrder()
{
    ChildForm form;
    auto* tabs = form.findChild<QTabWidget*>(QStringLiteral("devStacketTable"));
    QVERIFY(tabs);
    QVERIFY(!form.findChild<QTabWidget*>(QStringLiteral("tabWidget")));

    QStringList labels;
    for (int i = 0; i < tabs->count(); ++i)
        labels << tabs->tabText(i);
    QCOMPARE(labels, QStringList({"EnergyLine", "RT-Alarm", "Detail", "Control"}));
    auto* scroll = qobject_cast<QScrollArea*>(tabs->widget(2));
    QVERIFY(scroll && scroll->widgetResizable());
    QCOMPARE(tabs->widget(3)->metaObject()->className(), "SetInfoForm");
}

void TestChildForm::topLevelWhateverTheParent()
{
    ChildForm outer;
    ChildForm* inner = new ChildForm(&outer);
    QVERIFY(!inner->parent());
    delete inner;
}

void TestChildForm::levelGatesControlPage_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("below 0") << -1 << false;
    QTest::newRow("nobody") << 0 << false;
    QTest::newRow("operator") << 1 << true;
    QTest::newRow("above") << 7 << true;
}

void TestChildForm::levelGatesControlPage()
{
    QFETCH(int, level);
    QFETCH(bool, enabled);
    ChildForm form;
    form.setUserInfo(QStringLiteral("anna"), level);
    QCOMPARE(form.findChild<SetInfoForm*>()->isEnabled(), enabled);
}

void TestChildForm::commandsPassUnchanged()
{
    ChildForm form;
    QSignalSpy spy(&form, &CollectView::postDEvent);
    const QMap<QString, QVariant> command{{"name", "ups"}, {"controlId", 1003}};
    emit form.findChild<SetInfoForm*>()->postDEvent(1003, command);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().at(0).toInt(), 1003);
    QCOMPARE((spy.first().at(1).value<QMap<QString, QVariant>>()), command);
}

QTEST_MAIN(TestChildForm)
#include "tst_childform.moc"

// The container: routing of snapshots, names, levels and commands. Touches public operations, the
// widget tree and what each page holds of a snapshot.

#include "childform.h"
#include "e_event.h"
#include "energyline.h"
#include "rateinfoform.h"
#include "rteventform.h"
#include "setinfoform.h"

#include <QScrollArea>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

#include <memory>

namespace {

class Container : public ChildForm
{
public:
    using ChildForm::ChildForm;
    using ChildForm::pre_lostflag, ChildForm::Tab_No;
    using ChildForm::rtData, ChildForm::rtEvent, ChildForm::rateInfo, ChildForm::setInfo;
    using ChildForm::viewName;

    QTabWidget* tabs() const { return findChild<QTabWidget*>(QStringLiteral("devStacketTable")); }

    // The pages that hold a snapshot with this charge, which also raised an alarm.
    QString pagesShowing(int charge) const
    {
        QString pages;
        if (rtData->*&EnergyPage::bat_Cap == QString::number(charge))
            pages += QLatin1String("energy ");
        if ((rtEvent->*&AlarmPage::alarmTable).contains(charge))
            pages += QLatin1String("alarms ");
        if ((rateInfo->*&DetailPage::realData).value(realdata_ChargeRemaining) == charge)
            pages += QLatin1String("detail ");
        return pages.trimmed();
    }
    // A snapshot that no page can mistake for another's: the charge names the alarm it raises.
    void flush(int charge)
    {
        flushData({{realdata_ChargeRemaining, charge}, {alarm_CommunicationsLost + charge, 1}});
    }
    QStringList names() const
    {
        return {rtEvent->*&AlarmPage::currentName, rateInfo->*&DetailPage::currentName,
                setInfo->*&ControlPage::currentName};
    }

private:
    struct EnergyPage : Energyline {
        using Energyline::bat_Cap;
    };
    struct AlarmPage : RTEventForm {
        using RTEventForm::alarmTable, RTEventForm::currentName;
    };
    struct DetailPage : RateInfoForm {
        using RateInfoForm::currentName, RateInfoForm::realData;
    };
    struct ControlPage : SetInfoForm {
        using SetInfoForm::currentName;
    };
};

} // namespace

class TestChildForm : public QObject
{
    Q_OBJECT

private slots:
    void publishedNumbers();
    void tabsInOrder();
    void onlyTheVisiblePageGetsData_data();
    void onlyTheVisiblePageGetsData();
    void nameLevelAndCommands();
};

void TestChildForm::publishedNumbers()
{
    QCOMPARE(int(realdata_Reserve5), 72);
    QCOMPARE(int(alarm_cloud_connect_falil), 2067);
    QCOMPARE(int(info_ipAddr), 4014);
    QCOMPARE(int(eEvent_control_remote_shutdown), 1044);
    QCOMPARE(int(eEvent_searchResult), 2025);
}

void TestChildForm::tabsInOrder()
{
    const Container form;
    const QTabWidget* tabs = form.tabs();
    QVERIFY(tabs);
    QCOMPARE(form.pre_lostflag, UINT8(255)); // not yet known
    ChildForm outer;
    const std::unique_ptr<ChildForm> inner(new ChildForm(&outer));
    QVERIFY(!inner->parent()); // top level whatever the parent

    QStringList labels;
    for (int i = 0; i < tabs->count(); ++i)
        labels << tabs->tabText(i);
    QCOMPARE(labels, QStringList({"EnergyLine", "RT-Alarm", "Detail", "Control"}));
    auto* scroll = qobject_cast<QScrollArea*>(tabs->widget(2));
    QVERIFY(scroll && scroll->widgetResizable());
    QCOMPARE(tabs->widget(0), form.rtData);
    QCOMPARE(tabs->widget(1), form.rtEvent);
    QCOMPARE(scroll->widget(), form.rateInfo);
    QCOMPARE(tabs->widget(3), form.setInfo);
}

void TestChildForm::onlyTheVisiblePageGetsData_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("page");
    QTest::newRow("energy flow") << 0 << "energy";
    QTest::newRow("alarms") << 1 << "alarms";
    QTest::newRow("detail") << 2 << "detail";
    QTest::newRow("control takes none") << 3 << "";
}

void TestChildForm::onlyTheVisiblePageGetsData()
{
    QFETCH(int, tab);
    Container form;
    form.tabs()->setCurrentIndex(tab == 0 ? 3 : 0); // so that the next line is a change
    form.flush(11);
    QCOMPARE(form.pagesShowing(11), QString()); // stored only
    form.tabs()->setCurrentIndex(tab);
    QCOMPARE(form.Tab_No, uint(tab));
    QTEST(form.pagesShowing(11), "page"); // without waiting for the next poll
    form.flush(12);
    form.refreshData();
    QTEST(form.pagesShowing(12), "page");
    form.flush(13);
    form.UpdatePointTabInfo(-1);
    form.UpdatePointTabInfo(4);
    QMetaObject::invokeMethod(&form, "on_tabWidget_currentChanged", Q_ARG(int, -1));
    QCOMPARE(form.pagesShowing(13), QString());
    QCOMPARE(form.Tab_No, uint(tab));
}

void TestChildForm::nameLevelAndCommands()
{
    Container form;
    form.setName(QStringLiteral("Rack 4"));
    QCOMPARE(form.viewName, QString("Rack 4"));
    QCOMPARE(form.names(), QStringList({"Rack 4", "Rack 4", "Rack 4"}));

    for (int level : {-1, 0, 1, 7}) {
        form.setUserInfo(QStringLiteral("anna"), level);
        QCOMPARE(form.setInfo->isEnabled(), level >= 1);
    }

    QSignalSpy spy(&form, &CollectView::postDEvent);
    const QMap<QString, QVariant> command{{"name", "ups"}, {"controlId", 1003}};
    emit form.setInfo->postDEvent(1003, command);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().at(0).toInt(), 1003);
    QCOMPARE((spy.first().at(1).value<QMap<QString, QVariant>>()), command);
}

QTEST_MAIN(TestChildForm)
#include "tst_childform.moc"

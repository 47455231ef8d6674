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
    void tabsInOrder();
    void onlyTheVisiblePageGetsData();
    void nameLevelAndCommands();
};

void TestChildForm::tabsInOrder()
{
    const Container form;
    const QTabWidget* tabs = form.tabs();
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
}

void TestChildForm::onlyTheVisiblePageGetsData()
{
    const char* pages[] = {"energy", "alarms", "detail", ""}; // control takes none
    for (int tab = 0; tab < 4; ++tab) {
        Container form;
        form.tabs()->setCurrentIndex(tab == 0 ? 3 : 0); // so that the next line is a change
        form.flush(11);
        QCOMPARE(form.pagesShowing(11), QString()); // stored only
        form.tabs()->setCurrentIndex(tab);
        QCOMPARE(form.Tab_No, uint(tab));
        QCOMPARE(form.pagesShowing(11), QString(pages[tab])); // without waiting for the next poll
        form.flush(12);
        form.refreshData();
        QCOMPARE(form.pagesShowing(12), QString(pages[tab]));
        form.flush(13);
        form.UpdatePointTabInfo(-1);
        form.UpdatePointTabInfo(4);
        QCOMPARE(form.pagesShowing(13), QString());
        QCOMPARE(form.Tab_No, uint(tab));
    }
}

void TestChildForm::nameLevelAndCommands()
{
    Container form;
    form.setName(QStringLiteral("Rack 4"));
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

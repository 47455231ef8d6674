// The control page: what each choice posts, that nothing goes out unconfirmed, the keyboard.
// Touches the page through its widgets, and the prompt as the operator would.

#include "e_event.h"
#include "msgbox.h"
#include "setinfoform.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <functional>

namespace {

using Command = QMap<QString, QVariant>;

// Acts on the prompt that the next press of an OK button opens.
void onPrompt(const std::function<void(MsgBox*)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* prompt = qobject_cast<MsgBox*>(QApplication::activeModalWidget());
        QVERIFY(prompt);
        act(prompt);
    });
}

QPushButton* okButton(const SetInfoForm& page, bool testGroup)
{
    const auto buttons = page.findChildren<QPushButton*>(QStringLiteral("btnWhite"));
    return buttons.size() == 2 ? buttons.at(testGroup ? 0 : 1) : nullptr;
}

QLineEdit* minutes(const SetInfoForm& page)
{
    return page.findChild<QLineEdit*>(QStringLiteral("OffSet_1_Time"));
}

} // namespace

class TestSetInfoForm : public QObject
{
    Q_OBJECT

private slots:
    void confirmedPosts();
    void unconfirmedPostsNothing();
    void returnInMinutesPostsNothing();
    void minutesTakeEightDigits();
};

void TestSetInfoForm::confirmedPosts()
{
    const struct {
        const char *choice, *minutesText;
        int code;
        const char* value;
    } rows[] = {
        {"DevTest_0", "60", 1003, ""},  {"DevTest_2", "60", 1005, ""},
        {"DevTest_3", "60", 1006, ""},  {"OffSet_0", "60", 1007, "12"},
        {"OffSet_1", "15", 1008, "15"}, {"OffSet_1", "", 1008, ""},
        {"OffSet_2", "60", 1013, ""},   {"OffSet_3", "60", 1008, "1"}, // shares the code
    };
    for (const auto& row : rows) {
        SetInfoForm page;
        page.setCurrentName(QStringLiteral("<b>%1</b>"));
        auto* button = page.findChild<QRadioButton*>(row.choice);
        button->setChecked(true);
        minutes(page)->setText(row.minutesText);
        QSignalSpy spy(&page, &SetInfoForm::postDEvent);
        QString question;
        onPrompt([&](MsgBox* prompt) {
            question = prompt->findChild<QLabel*>()->text();
            QVERIFY(spy.isEmpty());
            prompt->okBtn_press();
        });
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("on_.*_OK_clicked [0-3]"));
        okButton(page, button->objectName().startsWith("DevTest"))->click();
        QCOMPARE(question, button->text() + '?');
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first().at(0).toInt(), row.code);
        QCOMPARE(
            spy.first().at(1).value<Command>(),
            (Command{{"name", "<b>%1</b>"}, {"controlId", row.code}, {"controlValue", row.value}}));
    }
}

void TestSetInfoForm::unconfirmedPostsNothing()
{
    for (bool pageRemoved : {false, true}) {
        QPointer<SetInfoForm> page = new SetInfoForm;
        QSignalSpy spy(page, &SetInfoForm::postDEvent);
        bool asked = false;
        onPrompt([&](MsgBox* prompt) {
            asked = true;
            if (pageRemoved) {
                delete page;
                prompt->okBtn_press();
            } else {
                QTest::mouseClick(prompt->findChild<QPushButton*>("btnWhite"), Qt::LeftButton);
            }
        });
        okButton(*page, pageRemoved)->click();
        QVERIFY(asked);
        QVERIFY(spy.isEmpty());
        delete page;
    }
}

// In a dialog Return looks for a button to press.
void TestSetInfoForm::returnInMinutesPostsNothing()
{
    QDialog host;
    auto* page = new SetInfoForm(&host);
    host.show();
    QVERIFY(QTest::qWaitForWindowActive(&host));
    bool asked = false;
    minutes(*page)->setFocus();
    QTimer::singleShot(0, &host, [&] {
        if (auto* prompt = qobject_cast<MsgBox*>(QApplication::activeModalWidget())) {
            asked = true;
            prompt->reject();
        }
    });
    QTest::keyClick(minutes(*page), Qt::Key_Return);
    QCoreApplication::processEvents();
    QVERIFY(!asked);
}

void TestSetInfoForm::minutesTakeEightDigits()
{
    SetInfoForm page;
    QCOMPARE(minutes(page)->text(), QStringLiteral("60"));
    minutes(page)->clear();
    QTest::keyClicks(minutes(page), QStringLiteral("-1a.2 %3456789"));
    QCOMPARE(minutes(page)->text(), QStringLiteral("12345678"));
}

QTEST_MAIN(TestSetInfoForm)
#include "tst_setinfoform.moc"

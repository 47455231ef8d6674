// The prompt dialog: buttons by style, answers by key and mouse, dragging, texts nobody expects.
// Touches only the dialog.

#include "msgbox.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

namespace
{

class Box : public MsgBox
{
public:
    using MsgBox::cancelbtn;
    using MsgBox::label_body_tit;
    using MsgBox::MsgBox;
    using MsgBox::okbtn;
};

void sendMouse(QWidget* widget, QEvent::Type type, QPoint pos, Qt::MouseButton button)
{
    QMouseEvent event(type, pos, widget->mapToGlobal(pos), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class TestMsgBox : public QObject
{
    Q_OBJECT

private slots:
    void buttonsOfStyle();
    void answer_data();
    void answer();
    void leftButtonDrags();
    void texts_data();
    void texts();
};

void TestMsgBox::buttonsOfStyle()
{
    for (int style : {0, 1, 5}) {
        const bool choice = style == MSGBOX_STYLE_CHOISE;
        Box box(style, QStringLiteral("Restart the UPS?"));
        box.adjustSize();
        box.grab(); // lays out
        QCOMPARE(box.cancelbtn->isVisibleTo(&box), choice);
        QVERIFY(box.okbtn->isVisibleTo(&box));
        QVERIFY(box.width() >= 300 && box.height() >= 150);
        QRect buttons = box.okbtn->geometry();
        if (choice) {
            QCOMPARE(box.cancelbtn->x() - (box.okbtn->x() + box.okbtn->width()), 20);
            buttons |= box.cancelbtn->geometry();
        }
        QVERIFY(qAbs(buttons.center().x() - box.rect().center().x()) <= 1);
        QVERIFY(box.windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(!(box.windowFlags() & Qt::WindowStaysOnTopHint));
    }
}

void TestMsgBox::answer_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QList<int>>("keys"); // none: a click on `click`
    QTest::addColumn<QString>("click");
    QTest::addColumn<int>("result");
    const auto row = [](const char* name, int style, QList<int> keys, const char* click,
                        int result) { QTest::newRow(name) << style << keys << click << result; };
    row("click Ok", 1, {}, "btnBlue", QDialog::Accepted);
    row("click Cancel", 1, {}, "btnWhite", QDialog::Rejected);
    row("Return", 1, {Qt::Key_Return}, "", QDialog::Accepted);
    row("Escape", 1, {Qt::Key_Escape}, "", QDialog::Rejected);
    row("Tab, Return", 1, {Qt::Key_Tab, Qt::Key_Return}, "", QDialog::Rejected);
    row("prompt: Tab, Return", 0, {Qt::Key_Tab, Qt::Key_Return}, "", QDialog::Accepted);
    row("prompt: Escape", 0, {Qt::Key_Escape}, "", QDialog::Rejected);
}

void TestMsgBox::answer()
{
    QFETCH(int, style);
    QFETCH(QList<int>, keys);
    QFETCH(QString, click);
    QFETCH(int, result);
    Box box(style, QStringLiteral("UPS shutdown?"));
    QTimer::singleShot(0, &box, [&] {
        QVERIFY(QTest::qWaitForWindowActive(&box));
        for (int key : keys)
            QTest::keyClick(box.focusWidget(), static_cast<Qt::Key>(key));
        if (!click.isEmpty())
            QTest::mouseClick(box.findChild<QPushButton*>(click), Qt::LeftButton);
    });
    QCOMPARE(box.exec(), result);
}

void TestMsgBox::leftButtonDrags()
{
    for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        Box box(MSGBOX_STYLE_CHOISE, QStringLiteral("UPS shutdown?"));
        box.move(100, 100);
        const QPoint start = box.pos();
        const QPoint end = button == Qt::LeftButton ? start + QPoint(50, 30) : start;
        const QPoint grip(10, 12);
        sendMouse(&box, QEvent::MouseMove, {200, 90}, Qt::NoButton);
        QCOMPARE(box.pos(), start);
        sendMouse(&box, QEvent::MouseButtonPress, grip, button);
        sendMouse(&box, QEvent::MouseMove, grip + QPoint(50, 30), button);
        QCOMPARE(box.pos(), end);
        sendMouse(&box, QEvent::MouseButtonRelease, grip, button);
        sendMouse(&box, QEvent::MouseMove, {200, 90}, Qt::NoButton);
        QCOMPARE(box.pos(), end);
    }
}

void TestMsgBox::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("wider");
    QTest::newRow("none") << QString() << false;
    QTest::newRow("long") << QStringLiteral("UPS will wake up from standby state, as asked?")
                          << true;
    QTest::newRow("as wide as a dialog gets") << QString(50, 'W') << true;
    QTest::newRow("rich text") << QStringLiteral("<h1>Ok</h1><img src='x'>") << false;
    QTest::newRow("20,000 words") << QStringLiteral("word ").repeated(20000) << true;
}

void TestMsgBox::texts()
{
    QFETCH(QString, text);
    QFETCH(bool, wider);
    Box box(MSGBOX_STYLE_CHOISE, text);
    box.adjustSize();
    QVERIFY(!box.grab().isNull());
    const QString shown = box.label_body_tit->text();
    QVERIFY(shown == text || (shown.size() == 1001 && text.startsWith(shown.left(1000))));
    QCOMPARE(box.label_body_tit->textFormat(), Qt::PlainText);
    QCOMPARE(box.width() > 300, wider);
    const QRect inside = box.rect().adjusted(30, 30, -30, -30);
    QVERIFY(inside.contains(box.label_body_tit->geometry()));
    QVERIFY(inside.contains(box.okbtn->geometry()));
}

QTEST_MAIN(TestMsgBox)
#include "tst_msgbox.moc"

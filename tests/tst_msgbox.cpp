// The prompt dialog: buttons by style, answers by key and mouse, dragging, texts nobody expects.
// Touches only the dialog.

#include "msgbox.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

namespace {

class Box : public MsgBox
{
public:
    using MsgBox::cancelbtn, MsgBox::label_body_tit, MsgBox::MsgBox, MsgBox::okbtn;
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
    void answer();
    void leftButtonDrags();
    void texts();
};

void TestMsgBox::answer()
{
    const struct {
        int style;
        QVector<Qt::Key> keys;
        const char* click; // instead of keys
        int result;
    } rows[] = {
        {1, {}, "btnBlue", QDialog::Accepted},
        {1, {}, "btnWhite", QDialog::Rejected},
        {1, {Qt::Key_Return}, nullptr, QDialog::Accepted},
        {1, {Qt::Key_Escape}, nullptr, QDialog::Rejected},
        {1, {Qt::Key_Tab, Qt::Key_Return}, nullptr, QDialog::Rejected},
        {0, {Qt::Key_Tab, Qt::Key_Return}, nullptr, QDialog::Accepted},
        {0, {Qt::Key_Escape}, nullptr, QDialog::Rejected},
    };
    for (const auto& row : rows) {
        Box box(row.style, QStringLiteral("UPS shutdown?"));
        QCOMPARE(box.cancelbtn->isVisibleTo(&box), row.style == MSGBOX_STYLE_CHOISE);
        QTimer::singleShot(0, &box, [&] {
            QVERIFY(QTest::qWaitForWindowActive(&box));
            for (Qt::Key key : row.keys)
                QTest::keyClick(box.focusWidget(), key);
            if (row.click)
                QTest::mouseClick(box.findChild<QPushButton*>(row.click), Qt::LeftButton);
        });
        QCOMPARE(box.exec(), row.result);
    }
}

void TestMsgBox::leftButtonDrags()
{
    for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        Box box(MSGBOX_STYLE_CHOISE, QStringLiteral("UPS shutdown?"));
        box.move(100, 100);
        const QPoint start = box.pos();
        const QPoint end = button == Qt::LeftButton ? start + QPoint(50, 30) : start;
        const QPoint grip(10, 12);
        sendMouse(&box, QEvent::MouseButtonPress, grip, button);
        sendMouse(&box, QEvent::MouseMove, grip + QPoint(50, 30), button);
        QCOMPARE(box.pos(), end);
        sendMouse(&box, QEvent::MouseButtonRelease, grip, button);
        sendMouse(&box, QEvent::MouseMove, {200, 90}, Qt::MiddleButton);
        QCOMPARE(box.pos(), end);
    }
}

void TestMsgBox::texts()
{
    const std::pair<QString, bool> rows[] = {// wider than a short question needs
                                             {QString(), false},
                                             {QString(50, 'W'), true},
                                             {"<h1>Ok</h1><img src='x'>", false},
                                             {QString("word ").repeated(20000), true}};
    for (const auto& [text, wider] : rows) {
        Box box(MSGBOX_STYLE_CHOISE, text);
        box.adjustSize();
        box.grab(); // paints
        const QString shown = box.label_body_tit->text();
        QVERIFY(shown == text || (shown.size() == 1001 && text.startsWith(shown.left(1000))));
        QCOMPARE(box.label_body_tit->textFormat(), Qt::PlainText);
        QCOMPARE(box.width() > 300, wider);
        const QRect inside = box.rect().adjusted(30, 30, -30, -30);
        QVERIFY(inside.contains(box.label_body_tit->geometry()));
        QVERIFY(inside.contains(box.okbtn->geometry()));
    }
}

QTEST_MAIN(TestMsgBox)
#include "tst_msgbox.moc"

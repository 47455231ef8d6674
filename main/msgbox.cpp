#include "msgbox.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr QSize kMinimumSize{300, 150}; // px
constexpr int kMargin = 30;             // px, on all sides
constexpr int kButtonGap = 20;          // px
constexpr int kPointSize = 11;
constexpr int kMaxCharacters = 1000;         // more fits on no screen
constexpr double kMaxShareOfScreen = 2 / 3.; // of the width; Qt makes no dialog wider by itself

void setMessage(QLabel* label, const QString& text)
{
    const bool cut = text.size() > kMaxCharacters;
    label->setText(cut ? text.left(kMaxCharacters) + QChar(0x2026) : text);

    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const int maxWidth =
        static_cast<int>(screen->availableSize().width() * kMaxShareOfScreen) - 2 * kMargin;
    if (label->sizeHint().width() <= maxWidth)
        return;
    label->setWordWrap(true);
    label->setFixedWidth(maxWidth);
}

} // namespace

MsgBox::MsgBox(int style, QString text)
    : label_body_tit(new QLabel)
    , okbtn(new QPushButton(tr("Ok")))
    , cancelbtn(new QPushButton(tr("Cancel")))
{
    label_body_tit->setTextFormat(Qt::PlainText);
    label_body_tit->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    label_body_tit->setFont(QFont(QStringLiteral("Microsoft YaHei"), kPointSize));
    setMessage(label_body_tit, text);
    okbtn->setObjectName(QStringLiteral("btnBlue"));
    cancelbtn->setObjectName(QStringLiteral("btnWhite"));

    auto* buttons = new QHBoxLayout;
    buttons->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    buttons->setSpacing(kButtonGap);
    buttons->addWidget(okbtn);
    buttons->addWidget(cancelbtn);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(label_body_tit);
    layout->addLayout(buttons);

    connect(okbtn, &QPushButton::clicked, this, &MsgBox::okBtn_press);
    connect(cancelbtn, &QPushButton::clicked, this, &MsgBox::cancleBtn_press);
    cancelbtn->setVisible(style == MSGBOX_STYLE_CHOISE);

    setMinimumSize(kMinimumSize);
    setProperty("canMove", true);
    setObjectName(QStringLiteral("WhiteDialog"));
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
}

void MsgBox::okBtn_press()
{
    accept();
}

void MsgBox::cancleBtn_press()
{
    reject();
}

void MsgBox::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    mouse_press = true;
    move_point = event->pos();
}

void MsgBox::mouseMoveEvent(QMouseEvent* event)
{
    if (mouse_press)
        move(event->globalPos() - move_point);
}

void MsgBox::mouseReleaseEvent(QMouseEvent*)
{
    mouse_press = false;
}

#include "window/controlnotice.h"

#include "window/plainlabel.h"
#include "window/urgencycolors.h"

#include <QHBoxLayout>
#include <QPushButton>

ControlNotice::ControlNotice(const Device& device, CommandDesk& desk, QWidget* parent)
    : QFrame(parent)
    , m_device(device)
    , m_desk(desk)
    , m_text(new PlainLabel)
    , m_logIn(new QPushButton(tr("Log in\u2026")))
{
    setObjectName(QStringLiteral("ControlNotice"));
    setStyleSheet(QStringLiteral("#ControlNotice { background: %1; } QLabel { color: white; }")
                      .arg(urgencyColor(Urgency::Notice).name()));
    m_logIn->setObjectName(QStringLiteral("ControlLogin"));
    connect(m_logIn, &QPushButton::clicked, &desk, &CommandDesk::askForLogIn);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 6, 16, 6);
    row->addWidget(m_text, 1);
    row->addWidget(m_logIn);
    hide();
}

void ControlNotice::refresh(bool onControlPage)
{
    if (!onControlPage)
        return hide();
    const CommandDesk::Barrier barrier = m_desk.barrierFor(m_device);
    m_text->setText(tr("Commands are disabled. %1").arg(barrier.reason));
    setAccessibleName(m_text->text());
    m_logIn->setVisible(barrier.logInHelps);
    setVisible(!barrier.reason.isEmpty());
}

#include "window/operatorbar.h"

#include "elidedlabel.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace {

constexpr int kShortestName = 6; // characters

} // namespace

OperatorBar::OperatorBar(OperatorSession& session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_who(new ElidedLabel({}, kShortestName))
    , m_button(new QPushButton)
{
    m_button->setObjectName(QStringLiteral("LoginButton"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_who, 1);
    row->addWidget(m_button);
    connect(m_button, &QPushButton::clicked, this, [this] {
        if (m_session.isLoggedIn())
            m_session.logOut();
        else
            emit loginWanted();
    });
    connect(&session, &OperatorSession::changed, this, &OperatorBar::refresh);
    refresh();
}

void OperatorBar::refresh()
{
    const bool loggedIn = m_session.isLoggedIn();
    m_who->setText(loggedIn ? tr("%1, level %2").arg(m_session.name()).arg(m_session.level())
                            : tr("Nobody is logged in"));
    m_button->setText(loggedIn ? tr("Log out") : tr("Log in"));
}

#include "operators/operatorsession.h"

#include "operators/logincheck.h"

#include <QDateTime>
#include <QThreadPool>

#include <memory>

OperatorSession::OperatorSession(QObject* parent)
    : QObject(parent)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(kDefaultIdleTime);
    connect(&m_idle, &QTimer::timeout, this, &OperatorSession::logOut);
}

qint64 OperatorSession::wallClock() const
{
    return QDateTime::currentMSecsSinceEpoch();
}

void OperatorSession::setOperators(const Operators& operators)
{
    m_operators = operators;
    if (!isLoggedIn())
        return;
    const std::optional<int> level = operators.level(m_name);
    if (!level)
        logOut();
    else
        set(m_name, *level);
}

void OperatorSession::setIdleTime(int milliseconds)
{
    if (milliseconds > 0)
        m_idle.setInterval(milliseconds);
}

void OperatorSession::logIn(const QString& name, const SecretText& password)
{
    const int attempt = ++m_attempt;
    m_checking = true;
    const auto check = std::make_shared<LoginCheck>();
    connect(check.get(), &LoginCheck::done, this, &OperatorSession::answer, Qt::QueuedConnection);
    QThreadPool::globalInstance()->start([check, attempt, name, password, table = m_operators] {
        emit check->done(attempt, name, table.verify(name, password).has_value());
    });
}

void OperatorSession::answer(int attempt, const QString& name, bool fits)
{
    if (attempt != m_attempt)
        return;
    m_checking = false;
    // The table may have changed since the check began.
    const std::optional<int> level = m_operators.level(name);
    if (!fits || !level) {
        emit refused(tr("Name or password is wrong."));
        return;
    }
    m_lastActivity = wallClock();
    m_idle.start();
    set(name, *level);
}

void OperatorSession::logOut()
{
    ++m_attempt;
    m_checking = false;
    m_idle.stop();
    set({}, OperatorAccount::kMinLevel);
}

void OperatorSession::activity()
{
    if (!isLoggedIn())
        return;
    const qint64 now = wallClock();
    if (now - m_lastActivity >= m_idle.interval()) {
        logOut();
        return;
    }
    m_lastActivity = now;
    m_idle.start();
}

void OperatorSession::set(const QString& name, int level)
{
    if (name == m_name && level == m_level)
        return;
    m_name = name;
    m_level = level;
    emit changed();
}

#include "operators/operatorsession.h"

#include "connectors/bootclock.h"
#include "operators/logincheck.h"

#include <QThreadPool>

#include <algorithm>
#include <memory>

namespace {

constexpr int kFreeFailures = 2;
constexpr qint64 kFirstWaitMs = 1000;
constexpr qint64 kLongestWaitMs = 60 * 1000;
constexpr int kMostNames = 1000; // whose failures are remembered

} // namespace

OperatorSession::OperatorSession(QObject* parent)
    : QObject(parent)
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(kDefaultIdleTime);
    connect(&m_idle, &QTimer::timeout, this, &OperatorSession::logOut);
}

qint64 OperatorSession::clockMs() const
{
    return bootClockMs();
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

void OperatorSession::check()
{
    if (m_source)
        setOperators(m_source());
}

QString OperatorSession::whyNoChange()
{
    check();
    if (!hasOperators() || m_level >= kChangeLevel)
        return {};
    return isLoggedIn() ? tr("%1 may look, but not change: that takes level %2.")
                              .arg(m_name)
                              .arg(kChangeLevel)
                        : tr("Log in first: devices and settings are changed by operators.");
}

void OperatorSession::logIn(const QString& name, const SecretText& password)
{
    check();
    const int attempt = ++m_attempt;
    const qint64 wait = m_failures.value(name).until - clockMs();
    if (wait > 0) {
        constexpr int kMsPerSecond = 1000;
        m_checking = false;
        emit refused(tr("Too many failed attempts. Try again in %1 s.")
                         .arg((wait + kMsPerSecond - 1) / kMsPerSecond));
        return;
    }
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
        noteFailure(name);
        emit refused(tr("Name or password is wrong."));
        return;
    }
    m_failures.remove(name);
    m_lastActivity = clockMs();
    m_idle.start();
    set(name, *level);
}

void OperatorSession::noteFailure(const QString& name)
{
    if (m_failures.size() >= kMostNames && !m_failures.contains(name))
        m_failures.clear();
    Failures& failures = m_failures[name];
    if (++failures.count > kFreeFailures) {
        const int doublings = std::min(failures.count - kFreeFailures - 1, 6);
        failures.until = clockMs() + std::min(kFirstWaitMs << doublings, kLongestWaitMs);
    }
    emit failed(m_operators.level(name) ? name : QString());
}

void OperatorSession::cancelLogIn()
{
    ++m_attempt;
    m_checking = false;
}

void OperatorSession::logOut()
{
    cancelLogIn();
    m_idle.stop();
    set({}, OperatorAccount::kMinLevel);
}

void OperatorSession::activity()
{
    if (!isLoggedIn())
        return;
    const qint64 now = clockMs();
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

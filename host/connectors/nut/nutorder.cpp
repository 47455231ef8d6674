#include "connectors/nut/nutorder.h"

#include <utility>

QString NutOrder::Step::label() const
{
    return QString::fromLatin1(variable.isEmpty() ? text : variable + " = " + text);
}

QByteArray NutOrder::Step::line(const QByteArray& ups) const
{
    return variable.isEmpty()
               ? "INSTCMD " + nutQuoted(ups) + ' ' + text
               : "SET VAR " + nutQuoted(ups) + ' ' + variable + ' ' + nutQuoted(text);
}

NutOrder::NutOrder(const UpsCommand& command, const Settings& settings)
    : m_command(command)
    , m_settings(settings)
    , m_devices(settings.server)
    , m_ups(settings.ups.toUtf8())
    , m_phase(m_ups.isEmpty() ? Phase::Choose : Phase::Commands)
{
    m_result.id = command.id;
    if (settings.user.isEmpty())
        finish(CommandOutcome::Refused,
               tr("Commands need an account of the server; add its user and password in the "
                  "configuration. Nothing was sent."));
}

std::optional<NutQuestion> NutOrder::next()
{
    if (!m_loggedIn && (m_phase == Phase::Send || m_phase == Phase::Follow)) {
        m_isFollowing = m_phase == Phase::Follow;
        m_phase = Phase::User;
    }
    NutQuestion question;
    switch (m_phase) {
    case Phase::Choose:
        return m_devices.next();
    case Phase::Commands:
        question.line = "LIST CMD " + nutQuoted(m_ups);
        return question;
    case Phase::Writable:
        question.line = "LIST RW " + nutQuoted(m_ups);
        return question;
    case Phase::User:
    case Phase::Password:
    case Phase::Tracking:
        return logIn();
    case Phase::Send:
        question.line = m_steps.first().line(m_ups);
        question.isOrder = true;
        question.connection = m_login;
        question.startsLimit = true;
        return question;
    case Phase::Follow:
        question.line = "GET TRACKING " + nutQuoted(m_tracking);
        question.connection = m_login;
        question.delay = kFollowInterval;
        question.startsLimit = true;
        return question;
    case Phase::Done:
        break;
    }
    return {};
}

NutQuestion NutOrder::logIn() const
{
    NutQuestion question;
    if (m_phase == Phase::User) {
        question.line = "USERNAME " + nutQuoted(m_settings.user.toUtf8());
        question.isSecret = true; // a refusal before anything is said of the account
        question.startsLimit = true;
        if (m_isFollowing)
            question.delay = kFollowInterval;
        return question;
    }
    question.isSecret = m_phase == Phase::Password;
    question.line = question.isSecret ? "PASSWORD " + nutQuoted(m_settings.secret.toUtf8())
                                      : QByteArray("SET TRACKING ON");
    question.connection = m_login;
    return question;
}

void NutOrder::take(const NutReply& reply)
{
    if (reply.failure && !reply.failure.isAnswer())
        m_loggedIn = false;
    switch (m_phase) {
    case Phase::Choose:
    case Phase::Commands:
    case Phase::Writable:
        return takeLook(reply);
    case Phase::User:
    case Phase::Password:
    case Phase::Tracking:
        return takeLogin(reply);
    case Phase::Send:
        return takeSent(reply);
    case Phase::Follow:
        return takeFollowed(reply);
    case Phase::Done:
        break;
    }
}

void NutOrder::takeLook(const NutReply& reply)
{
    NutFailure failure = reply.failure;
    if (m_phase == Phase::Choose) {
        m_devices.take(reply);
        m_ups = m_devices.onlyOne(failure);
    }
    if (failure)
        return refuseBefore(failure);
    if (m_phase == Phase::Choose) {
        m_phase = Phase::Commands;
    } else if (m_phase == Phase::Commands) {
        for (const NutWords& row : reply.rows)
            m_offered << row.at(2);
        m_phase = Phase::Writable;
    } else {
        for (const NutWords& row : reply.rows)
            if (!isPrivateNutVariable(row.at(2)))
                m_writable.insert(row.at(2), row.value(3));
        plan();
    }
}

void NutOrder::plan()
{
    m_plan = planNutCommand(m_command, m_offered, m_writable);
    if (m_plan.command.isEmpty())
        return finish(CommandOutcome::NotOffered,
                      tr("This UPS offers no such command; looked for %1.")
                          .arg(QString::fromLatin1(m_plan.lookedFor.join(", "))));
    for (const NutSetting& setting : qAsConst(m_plan.before))
        m_steps << Step{setting.variable, setting.value};
    m_steps << Step{{}, m_plan.command};
    m_phase = Phase::Send;
}

// The server says OK to any password; only an order tells.
void NutOrder::takeLogin(const NutReply& reply)
{
    NutFailure failure = reply.failure;
    // A server of before tracking refuses; its orders then go without a number.
    if (m_phase == Phase::Tracking && failure.isAnswer() && failure.error != "ACCESS-DENIED")
        failure = NutFailure();
    if (failure && m_isFollowing) {
        m_phase = Phase::Follow;
        m_followed += reply.elapsed;
        return failure.isAnswer() ? finish(CommandOutcome::Unknown,
                                           tr("%1 Look at the readings before sending it again.")
                                               .arg(failure.message))
                                  : lookAgain(failure);
    }
    if (failure)
        return refuseBefore(failure);
    if (m_phase == Phase::User) {
        m_login = reply.connection;
        m_phase = Phase::Password;
    } else if (m_phase == Phase::Password) {
        m_phase = Phase::Tracking;
    } else {
        m_loggedIn = true;
        m_phase = m_isFollowing ? Phase::Follow : Phase::Send;
    }
}

void NutOrder::takeSent(const NutReply& reply)
{
    const NutFailure& failure = reply.failure;
    const bool isLoginLost = failure && !failure.isAnswer() && !reply.wasSent;
    if (isLoginLost && !std::exchange(m_isLoginLost, true))
        return; // logs in again
    m_connection = reply.connection;
    m_followed = std::chrono::milliseconds(0);
    if (failure.isAnswer())
        return finish(CommandOutcome::Refused, tr("%1: %2").arg(label(), failure.message));
    if (failure && !reply.wasSent)
        return refuseBefore(failure);
    m_hasSent = true;
    const NutWords words = reply.rows.value(0);
    if (failure || words.value(0) != "OK")
        return finish(
            CommandOutcome::Unknown,
            tr("%1 Whether %2 was carried out is not known; it is not sent again.")
                .arg(failure ? failure.message : nutNonsense(m_settings.server).message, label()));
    m_tracking = words.value(1) == "TRACKING" ? words.value(2) : QByteArray();
    if (m_tracking.isEmpty())
        return goOn(false);
    m_phase = Phase::Follow;
}

void NutOrder::takeFollowed(const NutReply& reply)
{
    m_followed += reply.elapsed;
    const NutFailure& failure = reply.failure;
    if (!failure && reply.rows.value(0).value(0) == "SUCCESS")
        return goOn(true);
    // A server that was restarted since has forgotten the order and says UNKNOWN as well.
    const bool isForgotten = failure.error == "UNKNOWN" && reply.connection != m_connection;
    if (isForgotten)
        return finish(CommandOutcome::Unknown,
                      tr("The connection broke before the server told how %1 ended.").arg(label()));
    if (failure.isAnswer())
        return finish(CommandOutcome::Refused, tr("%1: %2").arg(label(), failure.message));
    lookAgain(failure);
}

void NutOrder::lookAgain(const NutFailure& failure)
{
    if (m_followed < kFollowLimits * m_settings.limit)
        return;
    const QString cause =
        failure ? failure.message
                : tr("The server took %1 but did not tell how it ended.").arg(label());
    finish(CommandOutcome::Unknown,
           tr("%1 Look at the readings before sending it again.").arg(cause));
}

void NutOrder::goOn(bool isTracked)
{
    const Step done = m_steps.takeFirst();
    m_phase = Phase::Send;
    m_isFollowing = false;
    if (!m_steps.isEmpty())
        return;
    if (!isTracked)
        return finish(CommandOutcome::Unknown,
                      tr("The server has handed %1 on to its driver, but cannot tell how it ended; "
                         "look at the readings.")
                          .arg(done.label()));
    finish(CommandOutcome::Done,
           m_plan.startDelayIsFixed
               ? tr("%1 was carried out; the minutes of standby cannot be set on this UPS, it "
                    "comes back as its own settings say.")
                     .arg(done.label())
               : tr("%1 was carried out.").arg(done.label()));
}

void NutOrder::refuseBefore(const NutFailure& failure)
{
    if (m_hasSent)
        return finish(CommandOutcome::Unknown,
                      tr("%1 %2 was not sent.").arg(failure.message, label()));
    finish(failure.state == LinkState::Lost ? CommandOutcome::NoAnswer : CommandOutcome::Refused,
           tr("%1 Nothing was sent.").arg(failure.message));
}

void NutOrder::finish(CommandOutcome outcome, const QString& message)
{
    m_phase = Phase::Done;
    m_result.outcome = outcome;
    m_result.message = message;
}

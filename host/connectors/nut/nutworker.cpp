#include "connectors/nut/nutworker.h"

#include "connectors/nut/nutcommands.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

// How often a running command is asked about.
constexpr std::chrono::milliseconds kFollowInterval(250);
// How many time-outs long a result is waited for: drivers of slow devices take their time.
constexpr int kFollowLimits = 4;

} // namespace

// What is sent for a command: settings first, the instant command last.
struct NutWorker::Order {
    QByteArray variable; // empty: an instant command
    QByteArray text;     // the value, or the name of the command

    QString label() const
    {
        return QString::fromLatin1(variable.isEmpty() ? text : variable + " = " + text);
    }
};

struct NutWorker::Job {
    NutRequest request;
    UpsCommand command;
    QByteArray ups;
    NutCommandPlan plan;
    QList<Order> orders; // the first one is under way
    QByteArray tracking;
    quint64 connection = 0; // that took the order
    NutSession::Clock::time_point deadline;
};

NutWorker::NutWorker(const NutAccount& account)
    : m_account(account)
    , m_session(account.host, account.port)
{}

// A request that waited while the server was found lost shares that finding, so that many devices
// do not wait one time-out each. A connection that turns out to be dead is replaced once: a server
// that was restarted costs no poll.
NutFailure NutWorker::attempt(const NutRequest& request,
                              const std::function<NutFailure()>& exchange)
{
    if (m_lostFailure && request.posted < m_lostAt)
        return m_lostFailure;
    m_session.setDeadline(NutSession::Clock::now() + request.limit);

    const bool reused = m_session.isOpen();
    NutFailure failure = m_session.open();
    if (!failure)
        failure = exchange();
    if (failure && !failure.isAnswer() && reused && !m_session.isOverdue()) {
        failure = m_session.open();
        if (!failure)
            failure = exchange();
    }
    if (failure.state == LinkState::Lost) {
        m_lostAt = NutSession::Clock::now();
        m_lostFailure = failure;
    } else {
        m_lostFailure = NutFailure();
    }
    return failure;
}

NutFailure NutWorker::chooseDevice(const NutRequest& request, QByteArray& ups)
{
    ups = request.ups.toUtf8();
    if (!ups.isEmpty())
        return {};
    QVector<NutUpsEntry> devices;
    const NutFailure failure = m_session.listDevices(devices);
    if (failure)
        return failure;
    if (devices.size() == 1) {
        ups = devices.first().name.toUtf8();
        return {};
    }
    QStringList names;
    for (const NutUpsEntry& device : qAsConst(devices))
        names << device.name;
    constexpr int kMostNames = 20;
    if (names.size() > kMostNames)
        names = names.mid(0, kMostNames) << QStringLiteral("...");
    return {LinkState::Refused, "NAME-REQUIRED",
            names.isEmpty()
                ? tr("The server has no UPS.")
                : tr("The server has several devices; put the name of one at the end of the "
                     "address: %1.")
                      .arg(names.join(QStringLiteral(", ")))};
}

NutFailure NutWorker::readDevice(const NutRequest& request, UpsReading& reading)
{
    QByteArray ups;
    NutVariables variables;
    QByteArray description;
    NutFailure failure = chooseDevice(request, ups);
    if (!failure)
        failure = m_session.listVariables(ups, variables);
    if (!failure && variables.value("ups.id").trimmed().isEmpty()) {
        failure = m_session.description(ups, description);
        if (failure.isAnswer())
            failure = NutFailure(); // the values stand without it
    }
    if (!failure)
        reading = readingFromNut(variables, description, QString::fromUtf8(ups));
    return failure;
}

void NutWorker::poll(const NutRequest& request)
{
    PollResult result;
    const NutFailure failure =
        attempt(request, [&] { return readDevice(request, result.reading); });
    result.state = failure.state;
    result.message = failure.message;
    emit polled(request.ticket, result);
}

void NutWorker::list(const NutRequest& request)
{
    QVector<NutUpsEntry> devices;
    const NutFailure failure = attempt(request, [&] { return m_session.listDevices(devices); });
    emit listed(request.ticket, failure ? QVector<NutUpsEntry>() : devices, failure.message);
}

// Everything that may be asked twice without harm.
NutFailure NutWorker::prepare(Job& job)
{
    QList<QByteArray> offered;
    NutVariables writable;
    NutFailure failure = chooseDevice(job.request, job.ups);
    if (!failure)
        failure = m_session.listCommands(job.ups, offered);
    if (!failure)
        failure = m_session.listWritable(job.ups, writable);
    if (failure)
        return failure;
    job.plan = planNutCommand(job.command, offered, writable);
    return job.plan.command.isEmpty() ? NutFailure()
                                      : m_session.logIn(m_account.user, m_account.secret);
}

void NutWorker::send(const NutRequest& request, const UpsCommand& command)
{
    const auto job = std::make_shared<Job>();
    job->request = request;
    job->command = command;
    if (m_account.user.isEmpty()) {
        finish(job, CommandOutcome::Refused,
               tr("Commands need an account of the server; add its user and password in the "
                  "configuration. Nothing was sent."));
        return;
    }
    const NutFailure failure = attempt(request, [&] { return prepare(*job); });
    if (failure) {
        finish(job,
               failure.state == LinkState::Lost ? CommandOutcome::NoAnswer
                                                : CommandOutcome::Refused,
               tr("%1 Nothing was sent.").arg(failure.message));
        return;
    }
    if (job->plan.command.isEmpty()) {
        finish(job, CommandOutcome::NotOffered,
               tr("This UPS offers no such command; looked for %1.")
                   .arg(QString::fromLatin1(job->plan.lookedFor.join(", "))));
        return;
    }
    for (const NutSetting& setting : qAsConst(job->plan.before))
        job->orders << Order{setting.variable, setting.value};
    job->orders << Order{{}, job->plan.command};
    job->deadline = NutSession::Clock::now() + kFollowLimits * request.limit;
    sendNext(job);
}

// An order is sent once. When the connection breaks before the answer nobody knows whether it
// arrived, and sending it again could carry it out twice.
void NutWorker::sendNext(const JobPointer& job)
{
    const Order& order = job->orders.first();
    m_session.setDeadline(NutSession::Clock::now() + job->request.limit);
    NutFailure failure = m_session.open();
    if (!failure)
        failure = m_session.logIn(m_account.user, m_account.secret);
    if (failure) {
        finish(job, CommandOutcome::NoAnswer,
               tr("%1 %2 was not sent.").arg(failure.message, order.label()));
        return;
    }
    failure = order.variable.isEmpty()
                  ? m_session.command(job->ups, order.text, job->tracking)
                  : m_session.setVariable(job->ups, order.variable, order.text, job->tracking);
    job->connection = m_session.number();
    if (failure.isAnswer()) {
        finish(job, CommandOutcome::Refused, tr("%1: %2").arg(order.label(), failure.message));
    } else if (failure) {
        finish(job, CommandOutcome::NoAnswer,
               tr("%1 Whether %2 was carried out is not known; it is not sent again.")
                   .arg(failure.message, order.label()));
    } else if (job->tracking.isEmpty()) {
        proceed(job, false);
    } else {
        follow(job);
    }
}

// In steps, so that the polls of all devices of the server go on meanwhile.
void NutWorker::follow(const JobPointer& job)
{
    const QString label = job->orders.first().label();
    NutRequest request = job->request;
    request.posted = NutSession::Clock::now();
    bool done = false;
    const NutFailure failure = attempt(request, [&] {
        const NutFailure login = m_session.logIn(m_account.user, m_account.secret);
        return login ? login : m_session.trackedState(job->tracking, done);
    });
    if (done) {
        proceed(job, true);
        return;
    }
    // A server that was restarted since has forgotten the order and says UNKNOWN as well.
    const bool forgotten = failure.error == "UNKNOWN" && m_session.number() != job->connection;
    if (failure.isAnswer() && !forgotten) {
        finish(job, CommandOutcome::Refused, tr("%1: %2").arg(label, failure.message));
    } else if (forgotten) {
        finish(job, CommandOutcome::NoAnswer,
               tr("The connection broke before the server told how %1 ended.").arg(label));
    } else if (m_session.isAborted() || NutSession::Clock::now() >= job->deadline) {
        const QString cause =
            failure ? failure.message
                    : tr("The server took %1 but did not tell how it ended.").arg(label);
        finish(job, CommandOutcome::NoAnswer,
               tr("%1 Look at the readings before sending it again.").arg(cause));
    } else {
        QTimer::singleShot(kFollowInterval, this, [this, job] { follow(job); });
    }
}

void NutWorker::proceed(const JobPointer& job, bool tracked)
{
    const Order order = job->orders.takeFirst();
    if (!job->orders.isEmpty()) {
        sendNext(job);
        return;
    }
    if (!tracked) {
        finish(job, CommandOutcome::NoAnswer,
               tr("The server has handed %1 on to its driver, but cannot tell how it ended; look "
                  "at the readings.")
                   .arg(order.label()));
        return;
    }
    finish(job, CommandOutcome::Done,
           job->plan.startDelayIsFixed
               ? tr("%1 was carried out; the minutes of standby cannot be set on this UPS, it "
                    "comes back as its own settings say.")
                     .arg(order.label())
               : tr("%1 was carried out.").arg(order.label()));
}

void NutWorker::finish(const JobPointer& job, CommandOutcome outcome, const QString& message)
{
    emit commandFinished(job->request.ticket, {job->command.id, outcome, message});
}

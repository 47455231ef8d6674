#include "notify/commandchannel.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTimer>

namespace {

QProcessEnvironment environmentOf(const Announcement& announcement)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& name : environment.keys())
        if (name.startsWith(QLatin1String("UPSDESK_")))
            environment.remove(name); // secrets are nobody else's
    environment.insert(QStringLiteral("UPSDESK_DEVICE"), announcement.device);
    environment.insert(QStringLiteral("UPSDESK_URGENCY"), urgencyName(announcement.condition));
    environment.insert(QStringLiteral("UPSDESK_TEXT"), announcement.condition.text);
    environment.insert(QStringLiteral("UPSDESK_SINCE"),
                       announcement.since.toOffsetFromUtc(announcement.since.offsetFromUtc())
                           .toString(Qt::ISODate));
    environment.insert(QStringLiteral("UPSDESK_RECOVERY"),
                       announcement.isRecovery ? QStringLiteral("1") : QStringLiteral("0"));
    return environment;
}

} // namespace

CommandChannel::CommandChannel(const QString& commandLine, QObject* parent, int timeLimitMs)
    : NotifyChannel(parent)
    , m_words(QProcess::splitCommand(commandLine))
    , m_timeLimitMs(timeLimitMs)
{}

CommandChannel::~CommandChannel()
{
    if (!m_running)
        return;
    m_running->disconnect(this);
    m_running->kill();
    m_running->waitForFinished(200); // ms; it has been killed
}

void CommandChannel::tell(const Announcement& announcement)
{
    if (m_waiting.size() >= kMostWaiting) {
        emit failed(
            tr("The command for notifications is too slow: %1 wait for it.").arg(kMostWaiting));
        return;
    }
    m_waiting.enqueue(announcement);
    if (!m_running)
        startNext();
}

// Empty: it ended as it should.
QString CommandChannel::fault(int code, int status) const
{
    if (status != QProcess::NormalExit)
        return tr("The command for notifications was ended: it crashed or ran longer than %1 s.")
            .arg(m_timeLimitMs / 1000);
    return code == 0 ? QString()
                     : tr("The command for notifications failed with exit code %1.").arg(code);
}

void CommandChannel::startNext()
{
    if (m_waiting.isEmpty())
        return;
    const Announcement announcement = m_waiting.dequeue();
    m_running = new QProcess(this);
    m_running->setProcessEnvironment(environmentOf(announcement));
    m_running->setStandardInputFile(QProcess::nullDevice());
    m_running->setStandardOutputFile(QProcess::nullDevice());
    m_running->setStandardErrorFile(QProcess::nullDevice());
    connect(m_running, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(tr("The command for notifications cannot be started: %1")
                       .arg(m_running->errorString()));
    });
    connect(m_running, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this](int code, QProcess::ExitStatus status) { finish(fault(code, status)); });
    QTimer::singleShot(m_timeLimitMs, m_running, &QProcess::kill);
    m_running->start(m_words.value(0), m_words.mid(1));
}

void CommandChannel::finish(const QString& reason)
{
    m_running->deleteLater();
    m_running = nullptr;
    if (reason.isEmpty())
        emit delivered();
    else
        emit failed(reason);
    // From the event loop: a program that cannot be started would else call back at once, over and
    // over.
    QTimer::singleShot(0, this, [this] {
        if (!m_running)
            startNext();
    });
}

#include "collector/servicemanager.h"

#include "reading/sanitize.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>
#include <systemd/sd-daemon.h>

namespace {

constexpr quint64 kUsPerMs = 1000;
// By the numbers of LogLevel; the journal takes them off.
constexpr const char* kPrefixes[] = {SD_ERR, SD_WARNING, SD_INFO};

void notify(const QByteArray& message)
{
    sd_notify(0, message.constData());
}

} // namespace

void logLine(LogLevel level, const QString& text)
{
    const bool isJournal = qEnvironmentVariableIsSet("JOURNAL_STREAM");
    const QByteArray line = (isJournal ? kPrefixes[static_cast<int>(level)] : "") +
                            cleanDeviceText(text).toUtf8() + '\n';
    std::fputs(line.constData(), stderr);
    std::fflush(stderr);
}

void tellReady(const QString& status)
{
    notify("READY=1\nSTATUS=" + cleanDeviceText(status).toUtf8());
}

void tellStatus(const QString& status)
{
    notify("STATUS=" + cleanDeviceText(status).toUtf8());
}

void tellReloading()
{
    notify("RELOADING=1");
}

void tellStopping()
{
    notify("STOPPING=1");
}

void startWatchdog()
{
    uint64_t limitUs = 0;
    if (sd_watchdog_enabled(0, &limitUs) <= 0)
        return;
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [] { notify("WATCHDOG=1"); });
    timer->start(static_cast<int>(limitUs / kUsPerMs / 3));
}

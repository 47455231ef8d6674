#include "window/timetext.h"

#include <QCoreApplication>
#include <QDateTime>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(TimeText)
};

constexpr qint64 kSecond = 1000;
constexpr qint64 kMinute = 60 * kSecond;
constexpr qint64 kHour = 60 * kMinute;
constexpr qint64 kDay = 24 * kHour;

} // namespace

QString localTimeText(qint64 timeMs)
{
    return QDateTime::fromMSecsSinceEpoch(timeMs).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss t"));
}

QString durationText(qint64 ms)
{
    if (ms < kMinute)
        return Tr::tr("%1 s").arg(ms / kSecond);
    if (ms < kHour)
        return Tr::tr("%1 min %2 s").arg(ms / kMinute).arg(ms % kMinute / kSecond);
    if (ms < kDay)
        return Tr::tr("%1 h %2 min").arg(ms / kHour).arg(ms % kHour / kMinute);
    return Tr::tr("%1 days %2 h").arg(ms / kDay).arg(ms % kDay / kHour);
}

#include "window/devicename.h"

#include "config/deskconfig.h"

#include <QCoreApplication>
#include <QHostAddress>

namespace {

constexpr int kRoomForNumber = 5;

} // namespace

QString nameOfReading(const UpsReading* reading)
{
    if (!reading)
        return {};
    const QString name = reading->name.simplified();
    return name.isEmpty() ? reading->model.simplified() : name;
}

QString freeName(const QString& proposal, const QStringList& taken)
{
    const bool telling = !proposal.isEmpty() && QHostAddress(proposal).isNull();
    const QString base = (telling ? proposal : QCoreApplication::translate("DeviceName", "UPS"))
                             .left(DeskConfig::kMaxName - kRoomForNumber)
                             .trimmed();
    QString free = base;
    for (int number = 2; taken.contains(free); ++number)
        free = QStringLiteral("%1 %2").arg(base).arg(number);
    return free;
}

#include "fleet/commandterms.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(CommandTerms)
};

using Scheme = DeviceAddress::Scheme;

constexpr int kSecondsPerMinute = 60;
// An agent may carry out a standby up to this long as a reboot, which knows no delay.
constexpr int kLongestReboot = 300; // s
constexpr double kWattsPerKilowatt = 1000;
constexpr double kWholeKilowatts = 10; // from here on

QString span(int seconds)
{
    if (seconds >= kSecondsPerMinute && seconds % kSecondsPerMinute == 0)
        return Tr::tr("%1 min").arg(seconds / kSecondsPerMinute);
    return Tr::tr("%1 s").arg(seconds);
}

QString offIn(const UpsCommand& command, const DeviceSettings& settings)
{
    const bool snmp = settings.address.scheme == Scheme::Snmp;
    const bool wholeUps =
        snmp && settings.shutdownWholeUps && command.kind == CommandKind::Shutdown;
    const QString what = wholeUps ? Tr::tr("the whole UPS") : Tr::tr("output");
    const bool mayBeReboot = snmp && command.kind == CommandKind::Standby &&
                             command.standbyMinutes * kSecondsPerMinute <= kLongestReboot;
    if (settings.shutdownDelay == 0)
        return Tr::tr("%1 off at once").arg(what);
    return (mayBeReboot ? Tr::tr("%1 off within %2") : Tr::tr("%1 off in %2"))
        .arg(what, span(settings.shutdownDelay));
}

// What becomes of the output.
QString effect(const UpsCommand& command, const DeviceSettings& settings)
{
    const bool nut = settings.address.scheme == Scheme::Nut;
    QString text;
    switch (command.kind) {
    case CommandKind::Restart:
        return nut ? Tr::tr("output off at once, and on again after the UPS's own time")
                   : Tr::tr("output off at once for %1").arg(span(settings.restartDuration));
    case CommandKind::Standby:
        text = Tr::tr("%1 for %2 min").arg(offIn(command, settings)).arg(command.standbyMinutes);
        break;
    case CommandKind::Shutdown:
        text = offIn(command, settings);
        break;
    default:
        return {};
    }
    return nut ? Tr::tr("%1 (or by the UPS's own times, where these are fixed)").arg(text) : text;
}

QString watts(double power)
{
    if (power < kWattsPerKilowatt)
        return Tr::tr("%1 W").arg(qRound(power));
    const double kilowatts = power / kWattsPerKilowatt;
    return Tr::tr("%1 kW").arg(kilowatts, 0, 'f', kilowatts < kWholeKilowatts ? 1 : 0);
}

QString loadText(const Device& device)
{
    double power = 0;
    bool isKnown = false;
    if (device.link() == LinkState::Live)
        for (const Value& line : device.reading()->output.power)
            if (line) {
                power += *line;
                isKnown = true;
            }
    if (!isKnown)
        return Tr::tr("how much load loses power is not known");
    return Tr::tr("%1 of load lose power").arg(watts(power));
}

} // namespace

bool takesLoadDown(CommandKind kind)
{
    return kind == CommandKind::Shutdown || kind == CommandKind::Standby ||
           kind == CommandKind::Restart;
}

QString commandTerms(const UpsCommand& command, const DeviceSettings& settings)
{
    const QString what = effect(command, settings);
    const QString label = commandLabel(command.kind);
    return what.isEmpty() ? label : QStringLiteral("%1: %2").arg(label, what);
}

QString commandWarning(const UpsCommand& command, const Device& device)
{
    const QString what = effect(command, device.settings());
    const bool restart = command.kind == CommandKind::Restart;
    return Tr::tr("%1: %2; %3")
        .arg(device.name(), restart ? Tr::tr("restart, %1").arg(what) : what, loadText(device));
}

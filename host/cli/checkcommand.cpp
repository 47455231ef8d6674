// upsdesk check ADDRESS: a plug-in for monitoring systems. One line and performance data on the
// standard output, and a state as exit code, whatever happens.
// May touch: devices, their connectors, readings and the configured thresholds.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/onepoll.h"
#include "cli/pluginrange.h"
#include "cli/subcommands.h"
#include "config/deskconfig.h"
#include "connectors/factory/connectorfactory.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace {

enum class State { Ok, Warning, Critical, Unknown }; // the numbers are the exit codes
constexpr const char* kStateNames[] = {"OK", "WARNING", "CRITICAL", "UNKNOWN"};

constexpr int kNever = std::numeric_limits<int>::max();

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(Check)
};

Value highestLoad(const UpsReading& reading)
{
    return *std::max_element(reading.output.load.begin(), reading.output.load.end());
}

Value totalPower(const UpsReading& reading)
{
    Value total;
    for (const Value& power : reading.output.power)
        if (power)
            total = total.value_or(0) + *power;
    return total;
}

// What limits can be set for. The configured thresholds hold at the limit itself, hence the @.
struct Quantity {
    const char* name;
    const char* unit;   // of the performance data
    const char* bounds; // least and most possible
    Value (*valueOf)(const UpsReading& reading);
    QString (*configuredWarning)(const Thresholds& thresholds);
    QString (*configuredCritical)(const Thresholds& thresholds);
    void (*takeOut)(Thresholds& thresholds); // of what the condition is judged by
};

QString none(const Thresholds&)
{
    return {};
}

const Quantity kQuantities[] = {
    {"load", "%", "0", highestLoad,
     [](const Thresholds& t) { return QStringLiteral("@%1:").arg(t.loadHigh); }, none,
     [](Thresholds& t) { t.loadHigh = kNever; }},
    {"charge", "%", "0;100", [](const UpsReading& r) { return r.charge; },
     [](const Thresholds& t) { return QStringLiteral("@~:%1").arg(t.chargeLow); },
     [](const Thresholds& t) { return QStringLiteral("@~:%1").arg(t.chargeCritical); },
     [](Thresholds& t) { t.chargeLow = t.chargeCritical = -1; }},
    {"runtime", "s", "0", [](const UpsReading& r) { return r.runtime; },
     none, // the configured limit holds on battery only
     none, [](Thresholds& t) { t.runtimeLow = -1; }},
    {"temperature", "C", "", [](const UpsReading& r) { return r.batteryTemperature; },
     [](const Thresholds& t) { return QStringLiteral("@%1:").arg(t.temperatureHigh); }, none,
     [](Thresholds& t) { t.temperatureHigh = kNever; }},
};

// Values that are only told, each with its performance data.
struct Figure {
    const char* label;
    const char* unit;
    Value (*valueOf)(const UpsReading& reading);
};

const Figure kFigures[] = {
    {"input_voltage", "V", [](const UpsReading& r) { return r.input.voltage[0]; }},
    {"output_voltage", "V", [](const UpsReading& r) { return r.output.voltage[0]; }},
    {"output_power", "W", totalPower},
    {"battery_voltage", "V", [](const UpsReading& r) { return r.batteryVoltage; }},
};

struct GivenLimits {
    QMap<QString, PluginRange> warning;
    QMap<QString, PluginRange> critical;
};

// Whatever a device or a file says stays within the one line and out of its performance data.
QString oneLine(QString text)
{
    for (QChar& c : text)
        if (!c.isPrint())
            c = QLatin1Char(' ');
    return text.replace(QLatin1Char('|'), QLatin1Char('/')).simplified();
}

int finish(State state, const QString& text, const QString& performance = {})
{
    QString line = QStringLiteral("UPS %1 - %2")
                       .arg(QLatin1String(kStateNames[static_cast<int>(state)]), oneLine(text));
    if (!performance.isEmpty())
        line += QStringLiteral(" | ") + performance;
    printOut(line);
    return static_cast<int>(state);
}

// "load=80" or "load=80,charge=50:" of each option. What is wrong with it, or nothing.
QString readLimits(const QStringList& options, QMap<QString, PluginRange>& limits)
{
    for (const QString& option : options) {
        for (const QString& each : option.split(QLatin1Char(','))) {
            const QString name = each.section(QLatin1Char('='), 0, 0);
            const auto range = parsePluginRange(each.section(QLatin1Char('='), 1));
            const bool known =
                std::any_of(std::begin(kQuantities), std::end(kQuantities),
                            [&name](const Quantity& q) { return name == QLatin1String(q.name); });
            if (!known || !range)
                return Tr::tr("\"%1\" is no limit; one looks like load=80, charge=50:, "
                              "runtime=300: or temperature=@40:")
                    .arg(each.left(40));
            limits.insert(name, *range);
        }
    }
    return {};
}

State stateOf(const Device& device)
{
    if (device.link() == LinkState::Refused)
        return State::Unknown; // the question is wrong, or the account
    if (device.link() != LinkState::Live)
        return State::Critical;
    switch (device.condition().urgency) {
    case Urgency::Normal:
    case Urgency::Notice:
        break;
    case Urgency::Warning:
        return State::Warning;
    case Urgency::Alarm:
    case Urgency::Critical:
        return State::Critical;
    }
    return device.reading()->outputSource == OutputSource::Other ? State::Unknown : State::Ok;
}

QString numberText(double value)
{
    QString text = QString::number(value, 'f', 2);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    return text.endsWith(QLatin1Char('.')) ? text.chopped(1) : text;
}

// What the given limits say of a value; the worse state stays.
void judge(const Quantity& quantity, double value, const GivenLimits& limits, State& state,
           QStringList& texts)
{
    const QString name = QLatin1String(quantity.name);
    for (const State worse : {State::Critical, State::Warning}) {
        const auto& ranges = worse == State::Critical ? limits.critical : limits.warning;
        const auto range = ranges.constFind(name);
        if (range == ranges.constEnd() || !range->alerts(value))
            continue;
        state = std::max(state, worse);
        texts << Tr::tr("%1 %2 %3 (limit %4)")
                     .arg(name, numberText(value), QLatin1String(quantity.unit), range->text);
        return;
    }
}

QString performanceOf(const Quantity& quantity, double value, const GivenLimits& limits,
                      const Thresholds& thresholds)
{
    const QString name = QLatin1String(quantity.name);
    const bool given = limits.warning.contains(name) || limits.critical.contains(name);
    const QString warning =
        given ? limits.warning.value(name).text : quantity.configuredWarning(thresholds);
    const QString critical =
        given ? limits.critical.value(name).text : quantity.configuredCritical(thresholds);
    QString data = QStringLiteral("'%1'=%2%3;%4;%5;%6")
                       .arg(name, numberText(value), QLatin1String(quantity.unit), warning,
                            critical, QLatin1String(quantity.bounds));
    while (data.endsWith(QLatin1Char(';')))
        data.chop(1);
    return data;
}

QStringList figuresOf(const UpsReading& reading)
{
    QStringList performance;
    for (const Figure& figure : kFigures)
        if (const Value value = figure.valueOf(reading))
            performance << QStringLiteral("'%1'=%2%3")
                               .arg(QLatin1String(figure.label), numberText(*value),
                                    QLatin1String(figure.unit));
    return performance;
}

// Of a live reading: what is beyond its limit, and what is judged for the graphs.
QStringList judgeAll(const UpsReading& reading, const GivenLimits& limits,
                     const Thresholds& thresholds, State& state, QStringList& texts)
{
    QStringList performance;
    for (const Quantity& quantity : kQuantities) {
        const QString name = QLatin1String(quantity.name);
        if (const Value value = quantity.valueOf(reading)) {
            judge(quantity, *value, limits, state, texts);
            performance << performanceOf(quantity, *value, limits, thresholds);
        } else if (limits.warning.contains(name) || limits.critical.contains(name)) {
            state = std::max(state, State::Unknown);
            texts << Tr::tr("%1 is not reported").arg(name);
        }
    }
    return performance;
}

int report(const Device& device, const GivenLimits& limits, const Thresholds& thresholds)
{
    State state = stateOf(device);
    QStringList texts{device.condition().text};
    if (!device.message().isEmpty())
        texts << device.message();
    QStringList performance;
    if (device.link() == LinkState::Live)
        performance = judgeAll(*device.reading(), limits, thresholds, state, texts) +
                      figuresOf(*device.reading());
    return finish(state, device.name() + QStringLiteral(": ") + texts.join(QStringLiteral(", ")),
                  performance.join(QLatin1Char(' ')));
}

// Those that the command line does not replace.
Thresholds withoutGiven(Thresholds thresholds, const GivenLimits& limits)
{
    for (const Quantity& quantity : kQuantities)
        if (const QString name = QLatin1String(quantity.name);
            limits.warning.contains(name) || limits.critical.contains(name))
            quantity.takeOut(thresholds);
    return thresholds;
}

} // namespace

int runCheck(const QStringList& arguments)
{
    CliParser parser(QStringLiteral("check"));
    const QCommandLineOption warning(QStringLiteral("warning"), Tr::tr("When to warn."),
                                     QStringLiteral("QUANTITY=RANGE"));
    const QCommandLineOption critical(QStringLiteral("critical"), Tr::tr("When it is critical."),
                                      QStringLiteral("QUANTITY=RANGE"));
    parser.addOptions({warning, critical});
    GivenLimits limits;
    for (const QString& wrong :
         {parser.fault(arguments), readLimits(parser.values(warning), limits.warning),
          readLimits(parser.values(critical), limits.critical)})
        if (!wrong.isEmpty())
            return finish(State::Unknown, wrong);
    parser.read(arguments); // answers --help
    const ChosenDevice chosen = chooseDevice(parser.positionalArguments().first());
    if (!chosen.settings)
        return finish(State::Unknown, chosen.error);

    const Thresholds configured = DeskConfig::load().settings().thresholds;
    Device device(*chosen.settings, makeConnector(*chosen.settings), FleetClock::system(), 0);
    device.setThresholds(withoutGiven(configured, limits));
    pollOnce(device);
    return report(device, limits, configured);
}

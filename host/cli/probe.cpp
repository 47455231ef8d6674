// upsdesk probe ADDRESS [--json]: one poll, every value by the name of its data key.
// May touch: devices, their connectors, readings and the configured thresholds.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/onepoll.h"
#include "cli/subcommands.h"
#include "config/deskconfig.h"
#include "connectors/factory/connectorfactory.h"
#include "fleet/device.h"
#include "reading/keynames.h"

#include "globalvar.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

QJsonObject valuesOf(const QMap<int, QVariant>& snapshot)
{
    QJsonObject values;
    for (auto it = snapshot.begin(); it != snapshot.end(); ++it)
        values.insert(keyName(it.key()), QJsonValue::fromVariant(it.value()));
    return values;
}

QString physicalName(int key)
{
    QString name = keyName(key);
    const QLatin1String half("_Hi"); // in which powers travel
    return name.endsWith(half) ? name.chopped(half.size()) : name;
}

QJsonObject physicalOf(const Device& device)
{
    QJsonObject values;
    if (const UpsReading* reading = device.reading()) {
        const auto physical = physicalValues(*reading);
        for (auto it = physical.begin(); it != physical.end(); ++it)
            values.insert(physicalName(it.key()),
                          QJsonObject{{"value", it->value}, {"unit", it->unit}});
    }
    return values;
}

// Raised alarms in the order of their keys; one without a key of its own comes first, with key -1.
// Silence is an alarm even where nothing was ever read.
QVector<QPair<int, QString>> alarmsOf(const Device& device)
{
    QSet<Alarm> raised;
    if (const UpsReading* reading = device.reading())
        raised = reading->alarms;
    if (device.link() != LinkState::Live)
        raised << Alarm::CommunicationsLost;
    QVector<QPair<int, QString>> alarms;
    for (Alarm alarm : raised)
        alarms.append({alarmKey(alarm), alarmText(alarm)});
    std::sort(alarms.begin(), alarms.end());
    return alarms;
}

// With the zone, whatever the zone of the machine is.
QString isoTime(const QDateTime& time)
{
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate);
}

QJsonObject conditionJson(const Device& device)
{
    const Condition condition = device.condition();
    return {{"urgency", urgencyName(condition)},
            {"text", condition.text},
            {"since", isoTime(device.conditionSince())},
            {"alarms", QJsonArray::fromStringList(condition.alarms)}};
}

QJsonArray alarmsJson(const Device& device)
{
    QJsonArray alarms;
    for (const auto& [key, text] : alarmsOf(device)) {
        QJsonObject entry{{"text", text}};
        if (key >= 0)
            entry.insert("key", key);
        alarms.append(entry);
    }
    return alarms;
}

QJsonObject jsonOf(const Device& device)
{
    QJsonArray notes;
    QJsonArray texts;
    if (const UpsReading* reading = device.reading()) {
        notes = QJsonArray::fromStringList(readingNotes(*reading));
        texts = QJsonArray::fromStringList(reading->alarmTexts);
    }
    return {{"address", device.address()},
            {"state", linkStateName(device.link())},
            {"message", device.message()},
            {"condition", conditionJson(device)},
            {"values", valuesOf(device.snapshot(SnapshotPage::Device))},
            {"physical", physicalOf(device)},
            {"alarms", alarmsJson(device)},
            {"alarmTexts", texts},
            {"notes", notes}};
}

// Every value with its unit; what has none (a state, a text) as the snapshot has it.
void printValues(const Device& device)
{
    const UpsReading* reading = device.reading();
    const auto physical = reading ? physicalValues(*reading) : QMap<int, PhysicalValue>();
    const auto snapshot = device.snapshot(SnapshotPage::Device);
    for (auto it = snapshot.begin(); it != snapshot.end(); ++it) {
        const auto value = physical.constFind(it.key());
        if (keyName(it.key()).endsWith(QLatin1String("_Lo")))
            continue; // the other half of a power
        const QString text = value == physical.constEnd()
                                 ? it.value().toString()
                                 : QStringLiteral("%1 %2")
                                       .arg(value->value, 0, 'f', value->unit.isEmpty() ? 0 : 1)
                                       .arg(value->unit);
        printOut(QStringLiteral("%1 %2").arg(physicalName(it.key()), -32).arg(text.trimmed()));
    }
}

void printPlain(const Device& device)
{
    printOut(device.address() + QStringLiteral(": ") + linkStateName(device.link()) +
             (device.message().isEmpty() ? QString() : QStringLiteral(", ") + device.message()));
    const Condition condition = device.condition();
    printOut(QStringLiteral("condition: %1 (%2)").arg(condition.text, urgencyName(condition)));
    printValues(device);
    for (const auto& alarm : alarmsOf(device))
        printOut(QStringLiteral("alarm: ") + alarm.second);
    if (const UpsReading* reading = device.reading()) {
        for (const QString& text : reading->alarmTexts)
            printOut(QStringLiteral("alarm text: ") + text);
        for (const QString& note : readingNotes(*reading))
            printOut(QStringLiteral("note: ") + note);
    }
}

} // namespace

int runProbe(const QStringList& arguments)
{
    CliParser parser(QStringLiteral("probe"));
    const QCommandLineOption json(QStringLiteral("json"),
                                  QCoreApplication::translate("Probe", "Print JSON."));
    parser.addOption(json);
    if (!parser.read(arguments))
        return ExitUsage;
    const auto settings = settingsForAddress(parser.positionalArguments().first());
    if (!settings)
        return ExitUsage;

    Device device(*settings, makeConnector(*settings), FleetClock::system(), 0);
    device.setThresholds(DeskConfig::load().settings().thresholds);
    pollOnce(device);

    if (parser.isSet(json))
        printOut(QString::fromUtf8(QJsonDocument(jsonOf(device)).toJson()).trimmed());
    else
        printPlain(device);
    return device.link() == LinkState::Live ? ExitOk : ExitNotReachable;
}

#include "fuzztargets.h"

#include "config/deskconfig.h"
#include "connectors/nut/nutanswer.h"
#include "connectors/nut/nutorder.h"
#include "connectors/nut/nutpoll.h"
#include "connectors/nut/nutreading.h"
#include "connectors/snmp/snmpreading.h"
#include "connectors/snmp/upsmib.h"
#include "fleet/urgency.h"
#include "reading/devicesnapshot.h"
#include "reading/sanitize.h"

#include <QDataStream>
#include <QFile>

#include <cmath>

// In every build, for a check that is compiled out cannot fail.
#define REQUIRE(condition)                                                                         \
    do {                                                                                           \
        if (!(condition))                                                                          \
            qFatal("broken promise: %s", #condition);                                              \
    } while (false)

namespace {

QByteArray fileBytes(const char* path)
{
    QFile file(QString::fromUtf8(path));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", path);
    return file.readAll();
}

void requireCleanText(const QString& text)
{
    REQUIRE(text.size() <= kMaxDeviceText);
    REQUIRE(text == text.trimmed());
    for (const QChar c : text)
        REQUIRE(c.category() != QChar::Other_Control && c.category() != QChar::Other_Format);
}

void requireFinite(const Value& value)
{
    REQUIRE(!value || std::isfinite(*value));
}

// What every reading must bear: being shown on all pages and judged.
void requireSoundReading(const UpsReading& reading)
{
    for (const QString& text :
         {reading.model, reading.manufacturer, reading.name, reading.attachedDevices,
          reading.softwareVersion, reading.agentVersion, reading.location})
        requireCleanText(text);
    for (const QString& text : reading.notes + reading.alarmTexts)
        for (const QChar c : text)
            REQUIRE(c.category() != QChar::Other_Control);
    for (const LineReading* lines : {&reading.input, &reading.output, &reading.bypass})
        for (const PhaseValues* values :
             {&lines->voltage, &lines->current, &lines->frequency, &lines->power, &lines->load})
            for (const Value& value : *values)
                requireFinite(value);
    for (const Value& value : {reading.charge, reading.runtime, reading.batteryVoltage,
                               reading.batteryCurrent, reading.batteryTemperature})
        requireFinite(value);
    for (const auto page : {SnapshotPage::EnergyFlow, SnapshotPage::Device, SnapshotPage::Chart})
        REQUIRE(!deviceSnapshot(reading, page).isEmpty());
    REQUIRE(!conditionOf(LinkState::Live, &reading).text.isEmpty());
}

// The lines as the answers to one question after the other, of a poll or of an order.
void runNutDialogue(NutDialogue& dialogue, const QByteArrayList& lines)
{
    constexpr int kMostQuestions = 1000;
    int line = 0;
    for (int i = 0; i < kMostQuestions; ++i) {
        const auto question = dialogue.next();
        if (!question)
            return;
        REQUIRE(!question->line.contains('\n'));
        NutAnswer answer(question->line);
        NutAnswer::State state = NutAnswer::State::Open;
        while (state == NutAnswer::State::Open && line < lines.size())
            state = answer.take(lines.at(line++));
        NutReply reply;
        reply.rows = answer.rows();
        reply.failure = answer.refusal();
        reply.wasSent = true;
        reply.connection = static_cast<quint64>(line);
        reply.elapsed = question->delay;
        if (state == NutAnswer::State::Open || state == NutAnswer::State::Unusable)
            reply = {nutNonsense("h"), {}, line % 2 == 0, reply.connection, {}, question->delay};
        dialogue.take(reply);
    }
    REQUIRE(!"a dialogue comes to its end");
}

// The lines of an answer, as a session hands them on.
void runNut(const QByteArray& input)
{
    NutVariables variables;
    bool saysMains = false;
    for (const QByteArray& line : input.split('\n')) {
        const auto words = splitNutLine(line);
        if (!words)
            continue;
        if (words->value(0) == "ERR")
            REQUIRE(!nutRefusal(words->value(1)).message.isEmpty());
        for (const QByteArray& word : *words) {
            // What we quote comes back as it was, but for control characters.
            const auto again = splitNutLine(nutQuoted(word));
            REQUIRE(again && again->size() == 1);
            REQUIRE(nutQuoted(again->first()) == nutQuoted(word));
        }
        if (words->size() >= 4 && !isPrivateNutVariable(words->at(2)))
            variables.insert(words->at(2), words->at(3));
    }
    const QByteArrayList lines = input.split('\n');
    NutPoll poll("h", lines.size() % 2 == 0 ? "unit" : "");
    runNutDialogue(poll, lines);
    if (poll.result().state == LinkState::Live)
        requireSoundReading(poll.result().reading);
    NutOrder order(UpsCommand(), {"h", "unit", "anna", "secret", std::chrono::seconds(1)});
    runNutDialogue(order, lines);
    REQUIRE(!order.result().message.isEmpty() && !order.result().message.contains("secret"));
    const UpsReading reading = readingFromNut(variables, input.left(40), QStringLiteral("unit"));
    requireSoundReading(reading);
    saysMains = variables.value("ups.status").contains("OL");
    REQUIRE(saysMains || reading.outputSource != OutputSource::Utility);
}

// "OID TYPE VALUE" by lines, as the recordings of the tests have them.
void runSnmp(const QByteArray& input)
{
    SnmpValues values;
    for (const QByteArray& line : input.split('\n')) {
        const QByteArrayList parts = line.split(' ');
        const QByteArray value = parts.mid(2).join(' ');
        SnmpOid oid = oidFromText(parts.value(0));
        if (oid.empty())
            continue;
        REQUIRE(oidFromText(toText(oid).toLatin1()) == oid);
        if (!parts.value(0).startsWith("1.3.6."))
            oid = UpsMib::objects + oid;
        const char type = parts.value(1).isEmpty() ? 'n' : parts.value(1).at(0);
        values[oid] = type == 'i'   ? SnmpValue::number(value.toLongLong())
                      : type == 't' ? SnmpValue::text(value)
                      : type == 'o' ? SnmpValue::objectId(oidFromText(value))
                                    : SnmpValue::null();
    }
    const UpsReading reading = readingFromSnmp(values);
    requireSoundReading(reading);
    const auto source = values.find(UpsMib::outputSource);
    REQUIRE(reading.outputSource != OutputSource::Utility ||
            (source != values.end() && source->second.raw() == qint64(OutputSource::Utility)));
}

void runConfig(const QByteArray& input)
{
    const ConfigDocument document(input);
    REQUIRE(document.toBytes() == input);
    REQUIRE(document.faults().size() <= ConfigDocument::kMaxFaults + 1);

    // An edit is there when the file is read again, and nothing else has changed its meaning. A
    // document with faults may be edited, too, but is never saved.
    ConfigDocument edited(document);
    const ConfigSection section{QStringLiteral("device"), QStringLiteral("New \"one\"")};
    const QString address = QStringLiteral("sim: # \\ \"");
    edited.setValue(section, QStringLiteral("address"), address);
    const ConfigDocument again(edited.toBytes());
    if (document.faults().isEmpty()) {
        REQUIRE(again.faults().isEmpty());
        REQUIRE(again.value(section, QStringLiteral("address")) == address);
        for (const ConfigSection& each : document.sections())
            for (const QString& key : document.keys(each))
                REQUIRE(each == section || again.value(each, key) == document.value(each, key));
    }

    DeskConfig config(document);
    REQUIRE(config.settings().pollInterval >= 1 && config.settings().pollInterval <= 3600);
    for (const DeviceSettings& device : config.devices()) {
        REQUIRE(device.pollInterval >= 1 && device.timeout >= 1 && device.retries >= 0);
        REQUIRE(!device.name.isEmpty() && device.name.size() <= DeskConfig::kMaxName);
    }
    if (!config.devices().isEmpty())
        config.removeDevice(config.devices().first().name);
}

void runAddress(const QByteArray& input)
{
    const ParsedAddress parsed = parseDeviceAddress(QString::fromUtf8(input));
    REQUIRE(parsed.address.has_value() == parsed.error.isEmpty());
    if (!parsed.address || parsed.address->scheme == DeviceAddress::Scheme::Simulator)
        return;
    REQUIRE(!parsed.address->host.isEmpty() && parsed.address->port > 0);
    const ParsedAddress again = parseDeviceAddress(parsed.address->text);
    REQUIRE(again.address && again.address->host == parsed.address->host);
}

void runText(const QByteArray& input)
{
    const QString text = cleanDeviceText(input);
    requireCleanText(text);
    REQUIRE(cleanDeviceText(text) == text);
    requireFinite(plausibleNumber(input));
}

} // namespace

const std::vector<FuzzTarget>& fuzzTargets()
{
    static const std::vector<FuzzTarget> targets{
        {"nut",
         runNut,
         {"BEGIN LIST VAR unit\nVAR unit ups.status \"OL CHRG\"\nVAR unit battery.charge \"97\"\n"
          "VAR unit input.phases \"3\"\nVAR unit input.L1-N.voltage \"231.4\"\n"
          "VAR unit input.L2-L3.voltage \"400\"\nVAR unit output.L1.power.percent \"45\"\n"
          "VAR unit ups.alarm \"Replace \\\"battery\\\"!\"\nVAR unit input.frequency \"49.9\"\n"
          "VAR unit ambient.1.humidity.status \"warning-high\"\nEND LIST VAR unit\n",
          "VAR unit ups.status \"OB LB DISCHRG\"\nVAR unit ups.timer.shutdown \"20\"\n"
          "VAR unit output.phases \"2\"\nVAR unit ups.realpower \"-1\"\nERR DATA-STALE\n",
          "ERR ACCESS-DENIED\nUPS unit \"The \\\\ one\"\nOK TRACKING 17\n"}},
        {"snmp", runSnmp, {fileBytes(TEST_DATA "/snmp/three-phase.txt"), "4.1.0 i 5\n2.1.0 i 3\n"}},
        {"config",
         runConfig,
         {"# desk\n[poll]\ninterval = 10\n[thresholds]\ncharge-low = 40\n[session]\n"
          "idle-logout = 5\n[secrets]\nstore = file\n\n# the tower\n[device \"UPS 1\"]\n"
          "address = snmp://public@ups.example:1161?version=1\nscale.input-voltage = 0.1\n"
          "shutdown-whole-ups = yes\n\n[operator \"anna\"]\nlevel = 2\n",
          "\xEF\xBB\xBF[device \"a \\\" b\"]\r\naddress = \"nut://h/u\" # note\r\nseed = 7\r\n"}},
        {"address",
         runAddress,
         {"sim:three-phase", "nut://[::1]:3493/ups", "nut://host.example/rack%201",
          "snmp://public@10.0.0.1:1161?version=1",
          "snmp://user@host?version=3&level=authPriv&auth=SHA-256&priv=AES&context=ups"}},
        {"text",
         runText,
         {"Tower \xC3\xBC 60", "  0230.5 ", "-1", "655350", "1e308", "\xE2\x80\xAE evil \x1B[31m",
          QByteArray(300, 'x')}},
    };
    return targets;
}

#ifndef READINGTEXT_H
#define READINGTEXT_H

// A reading as short texts, so that a test compares many quantities at once.
// May touch: readings.

#include "reading/upsreading.h"

#include <QMap>
#include <QStringList>

inline QString text(const Value& value)
{
    return value ? QString::number(*value, 'g', 10) : QStringLiteral("-");
}

inline QString text(const PhaseValues& values)
{
    return text(values[0]) + '/' + text(values[1]) + '/' + text(values[2]);
}

inline QString text(const LineReading& lines)
{
    return QStringLiteral("%1: %2 V %3 A %4 Hz %5 W %6 %")
        .arg(lines.lines ? QString::number(*lines.lines) : QStringLiteral("-"), text(lines.voltage),
             text(lines.current), text(lines.frequency), text(lines.power), text(lines.load));
}

// Everything of a reading that rows look at, by name.
inline QMap<QString, QString> describe(const UpsReading& r)
{
    QStringList alarms;
    for (const Alarm alarm : r.alarms)
        alarms << QString::number(static_cast<int>(alarm));
    alarms.sort();
    return {
        {"battery", QString::number(static_cast<int>(r.batteryState))},
        {"source", QString::number(static_cast<int>(r.outputSource))},
        {"seconds", text(r.secondsOnBattery)},
        {"runtime", text(r.runtime)},
        {"charge", text(r.charge)},
        {"batteryVoltage", text(r.batteryVoltage)},
        {"batteryCurrent", text(r.batteryCurrent)},
        {"temperature", text(r.batteryTemperature)},
        {"lineBads", text(r.inputLineBads)},
        {"input", text(r.input)},
        {"output", text(r.output)},
        {"bypass", text(r.bypass)},
        {"ratings",
         QStringList{text(r.ratedInputVoltage), text(r.ratedInputFrequency),
                     text(r.ratedOutputVoltage), text(r.ratedOutputFrequency),
                     text(r.ratedApparentPower), text(r.ratedPower), text(r.lowBatteryTime),
                     text(r.lowTransferVoltage), text(r.highTransferVoltage)}
             .join(' ')},
        {"beeper", r.beeper ? QString::number(static_cast<int>(*r.beeper)) : QStringLiteral("-")},
        {"alarms", alarms.join(',') + ' ' + r.alarmTexts.join(',')},
        {"names", QStringList{r.manufacturer, r.model, r.name, r.softwareVersion, r.agentVersion,
                              r.attachedDevices, r.location}
                      .join('|')},
    };
}

#endif // READINGTEXT_H

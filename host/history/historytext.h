#ifndef HISTORYTEXT_H
#define HISTORYTEXT_H

// Stored rows as text: CSV of RFC 4180 and JSON, for the command line and for files that the
// window writes.
// May touch: samples, journal entries, readings.

#include "history/journalentry.h"
#include "history/sample.h"

#include <QJsonObject>
#include <QStringList>

// ISO 8601 with the zone of this machine: "2026-03-29T03:00:00.000+02:00".
QString isoTime(qint64 timeMs);
// What such a text says, also without time or zone (this machine's), or how long ago it was:
// "90m", "36h", "7d", "2w". Empty: neither.
std::optional<qint64> timeOf(const QString& text, qint64 nowMs);

// One line with its end. A text that a spreadsheet would run as a formula gets an apostrophe in
// front; numbers stay numbers.
QString csvLine(const QStringList& fields);

// time, span (s), link, source, battery, alarms, then one column per quantity with its unit. span
// is 0 for a full sample, else the fields are means, and the worst of each state.
QStringList sampleTitles();
QStringList sampleFields(qint64 timeMs, qint64 spanMs, const Bucket& bucket);
// The same by the same names; what is not known is left out.
QJsonObject sampleObject(qint64 timeMs, qint64 spanMs, const Bucket& bucket);

QStringList journalTitles();
QStringList journalFields(const JournalEntry& entry);
QJsonObject journalObject(const JournalEntry& entry);

// "utility", "battery", ...: words of scripts.
QString sourceName(OutputSource source);

#endif // HISTORYTEXT_H

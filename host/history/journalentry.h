#ifndef JOURNALENTRY_H
#define JOURNALENTRY_H

// One line of the journal: something that happened, or that lasted from an onset to an end.
// May touch: urgencies, Qt Core.

#include "fleet/urgency.h"

#include <QMetaType>
#include <QString>
#include <QVector>

#include <optional>

// The words in journalKindName() are stored and read by scripts.
enum class JournalKind {
    Condition,     // what the desk says of a device
    Alarm,         // raised and cleared
    Outage,        // on battery, no test
    Bypass,        // the load is on the bypass
    Battery,       // tests, discharge, low, depleted
    Link,          // no way to the device
    Command,       // with its outcome
    Operator,      // in, out, failed log-in
    Configuration, // who changed what
    Store,         // the history could not be written
    Clock,         // the desk's clock was set
    Desk           // recording began; the desk itself failed somebody
};

QString journalKindName(JournalKind kind);
std::optional<JournalKind> journalKindOf(const QString& name);
QString urgencyName(Urgency urgency); // "normal", "notice", "warning", "alarm", "critical"
std::optional<Urgency> urgencyOfName(const QString& name);

// All texts are plain. Those from a device are cleaned and bounded, and still not to be trusted.
struct JournalEntry {
    qint64 id = 0; // order in the store; 0: not stored yet
    QString key;   // unique in all stores; made by newJournalKey()
    QString site;
    QString device; // empty: concerns no device
    JournalKind kind = JournalKind::Desk;
    Urgency severity = Urgency::Normal;
    QString text;
    QString message;             // cause, outcome, remark
    QString operatorName;        // who did it; empty: nobody
    QString fact;                // what lasts, by an unchanging word: "alarm:2", "link", "outage"
    qint64 onsetMs = 0;          // UTC
    std::optional<qint64> endMs; // UTC; none: still so, or nothing that lasts (isMoment)
    bool isMoment = false;       // happened once: a command, a log-in
    std::optional<double> lowestCharge; // %, of an outage
    QString acknowledgedBy;
    std::optional<qint64> acknowledgedMs;
    QString acknowledgeNote;
};
Q_DECLARE_METATYPE(JournalEntry)

QString newJournalKey();

// Which entries; what is left empty does not choose.
struct JournalFilter {
    QString device; // name, or "SITE/NAME"
    QVector<JournalKind> kinds;
    std::optional<qint64> fromMs; // entries that lasted until then or longer
    std::optional<qint64> toMs;   // entries that began before
    QString text;                 // in the text, the message or the note; case does not count
    std::optional<Urgency> atLeast;
    bool onlyOpen = false;
    bool onlyUnacknowledged = false;
    bool oldestFirst = false; // else the newest onset first
    int offset = 0;
    int limit = 1000; // at least 1
};

#endif // JOURNALENTRY_H

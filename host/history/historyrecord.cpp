#include "history/historyrecord.h"

#include "history/bytecode.h"

namespace {

constexpr quint64 kVersion = 1;
constexpr QString JournalEntry::*kTexts[] = {&JournalEntry::key,
                                             &JournalEntry::device,
                                             &JournalEntry::text,
                                             &JournalEntry::message,
                                             &JournalEntry::operatorName,
                                             &JournalEntry::fact,
                                             &JournalEntry::acknowledgedBy,
                                             &JournalEntry::acknowledgeNote};
constexpr double kChargeSteps = 1000;

void writeTime(ByteWriter& out, const std::optional<qint64>& time)
{
    out.number(time ? 1 : 0);
    out.signedNumber(time.value_or(0));
}

std::optional<qint64> readTime(ByteReader& in)
{
    const bool isThere = in.number() != 0;
    const qint64 time = in.signedNumber();
    return isThere ? std::optional<qint64>(time) : std::nullopt;
}

void writeEntry(ByteWriter& out, const JournalEntry& entry)
{
    for (const auto text : kTexts)
        out.text(entry.*text);
    out.number(static_cast<quint64>(entry.kind));
    out.number(static_cast<quint64>(entry.severity));
    out.signedNumber(entry.onsetMs);
    writeTime(out, entry.endMs);
    out.number(entry.isMoment ? 1 : 0);
    writeTime(out, entry.lowestCharge
                       ? std::optional<qint64>(qRound64(*entry.lowestCharge * kChargeSteps))
                       : std::nullopt);
    writeTime(out, entry.acknowledgedMs);
}

JournalEntry readEntry(ByteReader& in)
{
    JournalEntry entry;
    for (const auto text : kTexts)
        entry.*text = in.text();
    entry.kind = static_cast<JournalKind>(qMin<quint64>(in.number(), quint64(JournalKind::Desk)));
    entry.severity = static_cast<Urgency>(qMin<quint64>(in.number(), quint64(Urgency::Critical)));
    entry.onsetMs = in.signedNumber();
    entry.endMs = readTime(in);
    entry.isMoment = in.number() != 0;
    if (const auto charge = readTime(in))
        entry.lowestCharge = static_cast<double>(*charge) / kChargeSteps;
    entry.acknowledgedMs = readTime(in);
    return entry;
}

} // namespace

QByteArray encodeBatch(const HistoryBatch& batch)
{
    ByteWriter out;
    out.number(kVersion);
    out.text(batch.writer);
    out.number(batch.number);
    out.number(static_cast<quint64>(batch.records.size()));
    for (const HistoryRecord& record : batch.records) {
        out.number(static_cast<quint64>(record.kind));
        out.text(record.device);
        out.text(record.address);
        out.signedNumber(record.timeMs);
        if (record.entry)
            writeEntry(out, *record.entry);
        else
            out.blob(record.data);
    }
    return out.bytes();
}

bool decodeBatch(const QByteArray& bytes, HistoryBatch& batch)
{
    ByteReader in(bytes);
    const quint64 version = in.number();
    batch.writer = in.text();
    batch.number = in.number();
    for (quint64 left = in.number(); left > 0 && !in.failed(); --left) {
        HistoryRecord record;
        const quint64 kind = in.number();
        if (kind > quint64(HistoryRecord::Kind::Acknowledge))
            return false;
        record.kind = static_cast<HistoryRecord::Kind>(kind);
        record.device = in.text();
        record.address = in.text();
        record.timeMs = in.signedNumber();
        if (record.kind >= HistoryRecord::Kind::Begin)
            record.entry = QSharedPointer<const JournalEntry>::create(readEntry(in));
        else
            record.data = in.blob();
        batch.records += record;
    }
    return version == kVersion && !in.failed();
}

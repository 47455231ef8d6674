#include "history/devicehistory.h"

#include "history/historytext.h"

#include <QCoreApplication>
#include <QSaveFile>

#include <algorithm>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(DeviceHistory)
};

// A band each; the rest are marks. Conditions would only repeat what the others say.
const QVector<JournalKind> kBandKinds{JournalKind::Outage, JournalKind::Bypass, JournalKind::Link};
const QVector<JournalKind> kMarkKinds{JournalKind::Alarm,    JournalKind::Battery,
                                      JournalKind::Command,  JournalKind::Configuration,
                                      JournalKind::Operator, JournalKind::Desk};

constexpr double kNeighbours = 3.5; // intervals at most: two polls in between may be missing

qint64 rowEnd(const HistorySeries& series, int row)
{
    return series.timeMs.at(row) + series.spanMs.at(row);
}

} // namespace

DeviceHistory DeviceHistory::read(HistoryQueries& store, const Wish& wish)
{
    DeviceHistory history;
    const auto device = store.device(wish.device, wish.site);
    if (!device)
        return history;
    history.isKnown = true;
    history.extent = store.extent(device->id);
    history.series = store.series(device->id, wish.range, wish.mostRows, wish.quantities);

    JournalFilter filter;
    filter.device = device->name;
    filter.fromMs = wish.range.fromMs;
    filter.toMs = wish.range.toMs;
    filter.limit = kMostEntries + 1;
    const auto entries = [&](const QVector<JournalKind>& kinds) {
        filter.kinds = kinds;
        QVector<JournalEntry> found = store.journal(filter);
        history.isCut = history.isCut || found.size() > kMostEntries;
        found.resize(std::min(found.size(), kMostEntries));
        const auto isElsewhere = [&](const JournalEntry& e) { return e.site != device->site; };
        found.erase(std::remove_if(found.begin(), found.end(), isElsewhere), found.end());
        return found;
    };
    history.bands = entries(kBandKinds);
    history.marks = entries(kMarkKinds);
    return history;
}

qint64 knownEnd(const JournalEntry& entry, const std::optional<TimeRange>& extent)
{
    if (entry.endMs || entry.isMoment)
        return entry.endMs.value_or(entry.onsetMs);
    return extent ? std::max(entry.onsetMs, extent->toMs) : entry.onsetMs;
}

std::optional<double> lowestCharge(const JournalEntry& entry, const DeviceHistory& history)
{
    const HistorySeries& series = history.series;
    const int column = series.quantities.indexOf(quantityIndex(QStringLiteral("battery.charge")));
    if (entry.lowestCharge || column < 0)
        return entry.lowestCharge;
    std::optional<double> lowest;
    for (int row = 0; row < series.timeMs.size(); ++row) {
        const ValueRange& charge = series.values.at(column).at(row);
        if (charge.isKnown() && series.timeMs.at(row) >= entry.onsetMs &&
            series.timeMs.at(row) <= knownEnd(entry, history.extent))
            lowest = std::min(lowest.value_or(charge.least), charge.least);
    }
    return lowest;
}

qint64 longestStep(qint64 intervalMs)
{
    return static_cast<qint64>(static_cast<double>(intervalMs) * kNeighbours);
}

qint64 longestStep(const HistorySeries& series, qint64 intervalMs)
{
    QVector<qint64> steps;
    for (int row = 1; row < series.timeMs.size(); ++row)
        steps += series.timeMs.at(row) - rowEnd(series, row - 1);
    qint64 usual = intervalMs;
    if (!steps.isEmpty()) {
        const auto middle = steps.begin() + steps.size() / 2;
        std::nth_element(steps.begin(), middle, steps.end());
        usual = std::max(usual, *middle);
    }
    return longestStep(usual);
}

QVector<QPair<int, int>> unbrokenRuns(const HistorySeries& series, int column, qint64 longestStepMs)
{
    QVector<QPair<int, int>> runs;
    const QVector<ValueRange>& values = series.values.at(column);
    for (int row = 0; row < values.size(); ++row) {
        if (!values.at(row).isKnown())
            continue;
        const bool goesOn = !runs.isEmpty() && runs.constLast().second == row - 1 &&
                            series.timeMs.at(row) - rowEnd(series, row - 1) <= longestStepMs;
        if (goesOn)
            runs.last().second = row;
        else
            runs += {row, row};
    }
    return runs;
}

std::optional<int> rowAt(const HistorySeries& series, qint64 timeMs, qint64 longestStepMs)
{
    const auto after =
        std::upper_bound(series.timeMs.constBegin(), series.timeMs.constEnd(), timeMs);
    const int row = static_cast<int>(after - series.timeMs.constBegin()) - 1;
    if (row < 0 || timeMs - rowEnd(series, row) > longestStepMs)
        return {};
    return row;
}

QString writeCsv(HistoryQueries& store, const DeviceHistory::Wish& wish, const QString& path)
{
    const auto device = store.device(wish.device, wish.site);
    if (!device)
        return store.errorText().isEmpty() ? Tr::tr("Nothing is stored of this device.")
                                           : store.errorText();
    QSaveFile file(path);
    if (!file.open(QSaveFile::WriteOnly))
        return file.errorString();
    const auto write = [&file](const QStringList& fields) {
        return file.write(csvLine(fields).toUtf8()) >= 0;
    };
    bool isWritten = write(sampleTitles());
    store.forEach(device->id, wish.range, [&](qint64 timeMs, qint64 spanMs, const Bucket& bucket) {
        isWritten = isWritten && write(sampleFields(timeMs, spanMs, bucket));
        return isWritten;
    });
    if (!store.errorText().isEmpty())
        return store.errorText();
    return file.commit() && isWritten ? QString() : file.errorString();
}

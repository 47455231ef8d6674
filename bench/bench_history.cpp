// Rates, sizes and query times of the history on both databases:
//     bench_history [DEVICES] [HOURS] [sqlite|postgresql]
// PostgreSQL is started by the program on a free port and stopped by it.

#include "connectors/bootclock.h"
#include "history/historyqueries.h"
#include "history/historywriter.h"
#include "history/rollup.h"
#include "support/postgresfixture.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 kIntervalMs = 5000;
constexpr qint64 kYearMs = 365 * kMsPerDay;
constexpr int kYearDevices = 50;         // whose means of a year are there when questions are asked
constexpr int kPatienceRecords = 200000; // in the queue, beyond which the feeder waits
constexpr int kQuestions = 5;

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QString nameOf(int device)
{
    return QStringLiteral("UPS %1").arg(device, 4, 10, QLatin1Char('0'));
}

// A three-phase UPS of which every value moves a little.
Sample sampleOf(int device, qint64 timeMs)
{
    Sample sample{timeMs, LinkState::Live, {}};
    UpsReading& reading = sample.reading;
    const double swing = std::sin(static_cast<double>(timeMs / kIntervalMs + device));
    reading.outputSource = OutputSource::Utility;
    reading.batteryState = BatteryState::Normal;
    reading.charge = 100;
    reading.runtime = 1800 + std::round(60 * swing);
    reading.batteryVoltage = 273.2 + std::round(10 * swing) / 10;
    reading.batteryTemperature = 24 + std::round(10 * swing) / 10;
    for (LineReading* group : {&reading.input, &reading.output}) {
        group->lines = 3;
        for (std::size_t line = 0; line < 3; ++line) {
            group->voltage[line] = 230 + std::round(20 * swing) / 10;
            group->current[line] = 12 + std::round(30 * swing) / 10;
            group->frequency[line] = 50;
            group->power[line] = 2600 + std::round(500 * swing);
        }
    }
    for (Value& load : reading.output.load)
        load = 42 + std::round(5 * swing);
    return sample;
}

void feedDay(const HistoryWriterOptions& options, int devices, int hours)
{
    HistoryWriter writer(options);
    writer.start();
    const qint64 end = QDateTime::currentMSecsSinceEpoch() - kMsPerHour;
    QElapsedTimer clock;
    clock.start();
    qint64 fed = 0;
    int most = 0;
    for (qint64 t = end - hours * kMsPerHour; t < end; t += kIntervalMs) {
        for (int device = 0; device < devices; ++device, ++fed)
            writer.addSample(nameOf(device), QStringLiteral("nut://host/ups"),
                             sampleOf(device, t + kIntervalMs * device / devices));
        most = std::max(most, writer.waiting());
        while (writer.waiting() > kPatienceRecords)
            QThread::msleep(10);
    }
    while (writer.written() < static_cast<quint64>(fed) - writer.lostSamples())
        QThread::msleep(10);
    const double seconds = static_cast<double>(clock.elapsed()) / 1000;
    const double needed = devices * 1000.0 / kIntervalMs;
    out() << fed << " samples of " << devices << " devices, " << hours
          << " h at 5 s: " << qRound(static_cast<double>(fed) / seconds)
          << " samples/s (needed: " << needed << "), at most " << most << " waiting, "
          << writer.lostSamples() << " lost\n";
    out().flush();
}

qint64 sizeOf(HistoryStore& store, const QString& table)
{
    if (store.address().kind == StoreAddress::Kind::Sqlite) {
        QSqlQuery* query =
            store.run(QStringLiteral("SELECT sum(pgsize) FROM dbstat WHERE name = ?"), {table});
        return query && query->next() ? query->value(0).toLongLong() : -1;
    }
    QSqlQuery* query = store.run(
        QStringLiteral("SELECT sum(pg_total_relation_size(inhrelid)) FROM pg_inherits WHERE "
                       "inhparent = ?::regclass"),
        {table});
    return query && query->next() ? query->value(0).toLongLong() : -1;
}

void tellSizes(HistoryStore& store)
{
    for (const Tier& tier : kTiers) {
        const QString table = QLatin1String(tier.table);
        QSqlQuery* query = store.run(QStringLiteral("SELECT count(*) FROM ") + table);
        const qint64 rows = query && query->next() ? query->value(0).toLongLong() : 0;
        query->finish();
        const double perRow = rows > 0 ? static_cast<double>(sizeOf(store, table)) / rows : 0;
        const qint64 rowsPerDay = kMsPerDay / std::max(tier.spanMs, kIntervalMs);
        out() << "  " << table << ": " << rows << " rows, " << qRound(perRow) << " bytes each, "
              << QString::number(perRow * rowsPerDay / 1024, 'f', 1) << " KiB per device and day\n";
    }
    out().flush();
}

// What the writer has not come to yet.
void makeMeans(HistoryStore& store)
{
    constexpr int spans = 200;
    Rollup rollup(store);
    if (!rollup.resume())
        qFatal("%s", qPrintable(store.errorText()));
    QElapsedTimer clock;
    clock.start();
    qint64 made = 0;
    for (int step = 1; step > 0; made += step)
        step = rollup.step(QDateTime::currentMSecsSinceEpoch(), spans);
    out() << "  "
          << qRound(made * 1000.0 / static_cast<double>(std::max<qint64>(clock.elapsed(), 1)))
          << " means/s\n";
}

// Means of a year, as they would have been made.
void fillYear(HistoryStore& store)
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    Bucket bucket;
    bucket.add(sampleOf(1, 0));
    bucket.add(sampleOf(1, 5000));
    const QByteArray data = encodeBucket(bucket);
    for (int tier : {2, 3}) {
        const qint64 span = kTiers[tier].spanMs;
        store.begin();
        for (qint64 t = spanStart(now - kYearMs, span); t < now - kMsPerDay; t += span) {
            QVariantList values;
            for (int device = 1; device <= kYearDevices; ++device)
                values << device << t << data;
            if (!store.prepareTier(tier, t) ||
                !store.insertRows(QStringLiteral("%1 (device, t, data)").arg(kTiers[tier].table),
                                  QStringLiteral("ON CONFLICT DO NOTHING"), 3, values))
                qFatal("%s", qPrintable(store.errorText()));
        }
        store.commit();
    }
}

void ask(HistoryStore& store, const char* what, const std::function<int(HistoryQueries&)>& question)
{
    QVector<qint64> times;
    int rows = 0;
    for (int i = 0; i < kQuestions; ++i) {
        QElapsedTimer clock;
        clock.start();
        HistoryQueries queries(store);
        rows = question(queries);
        times += clock.nsecsElapsed() / 1000;
    }
    const qint64 first = times.first();
    std::sort(times.begin(), times.end());
    out() << "  " << what << ": " << rows << " rows, first " << first / 1000.0 << " ms, median "
          << times.at(kQuestions / 2) / 1000.0 << " ms\n";
    out().flush();
}

void askAll(HistoryStore& store)
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    QVector<int> wanted;
    for (std::size_t i = 0; i < quantities().size(); ++i)
        wanted += static_cast<int>(i);
    const auto series = [&](qint64 length, int rows) {
        return [=](HistoryQueries& queries) {
            return queries.series(7, {now - length, now}, rows, wanted).timeMs.size();
        };
    };
    ask(store, "an hour, 1000 points", series(2 * kMsPerHour, 1000));
    ask(store, "a day, 1000 points", series(kMsPerDay + kMsPerHour, 1000));
    ask(store, "a year, 1000 points", series(kYearMs, 1000));
    ask(store, "a year, all 15-minute means", series(kYearMs, 40000));
}

int run(const StoreAddress& address, int devices, int hours)
{
    QTemporaryDir folder;
    HistoryWriterOptions options;
    options.store = address;
    options.spoolFolder = folder.filePath("spool");
    out() << address.text() << '\n';
    feedDay(options, devices, hours);
    const auto store = HistoryStore::make(address);
    if (!store->open(HistoryStore::Access::Write)) {
        out() << store->errorText() << '\n';
        return 1;
    }
    makeMeans(*store);
    tellSizes(*store);
    fillYear(*store);
    askAll(*store);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    const int devices = arguments.value(1, QStringLiteral("500")).toInt();
    const int hours = arguments.value(2, QStringLiteral("24")).toInt();
    const QString only = arguments.value(3);
    int result = 0;
    if (only != QLatin1String("postgresql")) {
        QTemporaryDir folder;
        StoreAddress address;
        address.path = folder.filePath("history.db");
        result |= run(address, devices, hours);
    }
    if (only != QLatin1String("sqlite")) {
        PostgresFixture server;
        if (const QString fault = server.start(); !fault.isEmpty()) {
            out() << fault << '\n';
            return 1;
        }
        result |= run(server.address(), devices, hours);
    }
    return result;
}

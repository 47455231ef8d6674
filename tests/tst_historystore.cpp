// The history on both databases: what goes in comes out, in every tier, whatever the clock did.

#include "history/batchstore.h"
#include "history/historyqueries.h"
#include "history/historyreader.h"
#include "support/postgresfixture.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr qint64 kNoon = 1700049600000; // UTC, start of a six-hour span
const QString kName = QStringLiteral("Rack 3");

UpsReading exampleReading()
{
    UpsReading reading;
    for (std::size_t i = 0; i < quantities().size(); ++i)
        setQuantity(reading, quantities()[i], 0.125 + 17.0 * static_cast<double>(i));
    reading.batteryCurrent = -3.5;
    reading.runtime = {};
    reading.batteryState = BatteryState::Discharge;
    reading.outputSource = OutputSource::Battery;
    reading.input.lines = 3;
    reading.output.lines = 1;
    reading.ratedPower = 2700;
    reading.lowBatteryTime = 120;
    reading.beeper = Beeper::Muted;
    reading.alarms = {Alarm::OnBattery, Alarm::TestInProgress};
    reading.alarmTexts =
        QStringList{QStringLiteral("1.3.6.1.4.1.99999.1.5"), QString::fromUtf8("Lüfter")};
    reading.alarmCount = 3;
    reading.model = QStringLiteral("M'1; DROP TABLE samples --");
    reading.location = QString::fromUtf8("Köln ⚡");
    reading.notes = QStringList{QStringLiteral("split phase")};
    return reading;
}

Sample sampleAt(qint64 timeMs, double charge, OutputSource source = OutputSource::Utility)
{
    Sample sample{timeMs, LinkState::Live, {}};
    sample.reading.charge = charge;
    sample.reading.outputSource = source;
    return sample;
}

} // namespace

class TestHistoryStore : public QObject
{
    Q_OBJECT

private:
    PostgresFixture m_postgres;
    QTemporaryDir m_folder;
    QString m_startFault;
    std::unique_ptr<HistoryStore> m_store;
    std::unique_ptr<BatchStore> m_batches;
    quint64 m_number = 0;

    void openFresh()
    {
        QFETCH_GLOBAL(bool, postgres);
        m_batches.reset();
        StoreAddress address;
        address.path = m_folder.filePath(QStringLiteral("deep/%1.db").arg(++m_number));
        if (postgres) {
            QCOMPARE(m_startFault, QString());
            QCOMPARE(m_postgres.clear(), QString());
            address = m_postgres.address();
        }
        m_store = HistoryStore::make(address);
        reopen();
    }
    void reopen()
    {
        QVERIFY2(m_store->open(HistoryStore::Access::Write), qPrintable(m_store->errorText()));
        m_batches = std::make_unique<BatchStore>(*m_store, QStringLiteral("north"));
        QVERIFY2(m_batches->rollup().resume(), qPrintable(m_store->errorText()));
    }
    void write(const QVector<Sample>& samples)
    {
        HistoryBatch batch{QStringLiteral("w"), ++m_number, {}};
        for (const Sample& sample : samples)
            batch.records += HistoryRecord{HistoryRecord::Kind::Sample, kName,
                                           QStringLiteral("nut://h/u"), sample.timeMs,
                                           encodeSample(sample),        {}};
        QVERIFY2(m_batches->write(batch), qPrintable(m_store->errorText()));
    }
    void rollUp(qint64 nowMs)
    {
        int made = 0;
        while ((made = m_batches->rollup().step(nowMs, 500)) > 0) {
        }
        QVERIFY2(made == 0, qPrintable(m_store->errorText()));
    }
    HistorySeries charges(TimeRange range, int rows)
    {
        HistoryQueries queries(*m_store);
        const auto device = queries.device(kName);
        return device ? queries.series(device->id, range, rows, {quantityIndex("battery.charge")})
                      : HistorySeries();
    }

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("postgres");
        QTest::newRow("sqlite") << false;
        QTest::newRow("postgresql") << true;
    }
    void initTestCase() { m_startFault = m_postgres.start(); }
    void init() { openFresh(); }

    void readingsComeBackWhole()
    {
        const UpsReading reading = exampleReading();
        HistoryBatch batch{QStringLiteral("w"), 1, {}};
        const QString address = QStringLiteral("snmp://h");
        batch.records +=
            {HistoryRecord::Kind::Info, kName, address, kNoon, encodeInfo(reading), {}};
        batch.records += {HistoryRecord::Kind::Sample,
                          kName,
                          address,
                          kNoon + 1,
                          encodeSample({kNoon + 1, LinkState::Live, reading}),
                          {}};
        batch.records += {HistoryRecord::Kind::Sample,
                          kName,
                          address,
                          kNoon + 2,
                          encodeSample({kNoon + 2, LinkState::Lost, {}}),
                          {}};
        HistoryBatch again;
        QVERIFY(decodeBatch(encodeBatch(batch), again));
        QVERIFY2(m_batches->write(again), qPrintable(m_store->errorText()));

        HistoryQueries queries(*m_store);
        const auto device = queries.device(address);
        QVERIFY(device && device->name == kName && device->site == QLatin1String("north"));
        const auto stored = queries.readings(device->id, {kNoon, kNoon + 10}, 10);
        QCOMPARE(stored.size(), 2);
        QCOMPARE(stored.at(0).timeMs, kNoon + 1);
        QCOMPARE(encodeSample({0, stored.at(0).link, stored.at(0).reading}),
                 batch.records.at(1).data);
        QCOMPARE(encodeInfo(stored.at(0).reading), batch.records.at(0).data);
        QCOMPARE(stored.at(0).reading.model, reading.model);
        QCOMPARE(stored.at(0).reading.batteryCurrent, reading.batteryCurrent);
        QCOMPARE(stored.at(1).link, LinkState::Lost);
        QCOMPARE(queries.readingAt(device->id, kNoon + 1)->reading.location, reading.location);
    }

    void batchesCountOnce()
    {
        HistoryBatch batch{QStringLiteral("w"), 1, {}};
        batch.records +=
            {HistoryRecord::Kind::Sample, kName, {}, kNoon, encodeSample(sampleAt(kNoon, 50)), {}};
        QVERIFY(m_batches->write(batch));
        QVERIFY(m_batches->write(batch)); // from the spool, after a commit nobody heard of
        QCOMPARE(charges({kNoon, kNoon + 100}, 100).timeMs.size(), 1);
    }

    void outagesDoNotVanishInMeans()
    {
        constexpr qint64 interval = 5000;
        QVector<Sample> samples;
        for (qint64 t = 0; t < 2 * kTiers[3].spanMs; t += interval) {
            const bool outage = t == 7 * interval;
            samples += sampleAt(kNoon + t, outage ? 40 : 100,
                                outage ? OutputSource::Battery : OutputSource::Utility);
        }
        write(samples.mid(0, 2000));
        reopen(); // a restart between samples and their means
        write(samples.mid(2000));
        rollUp(kNoon + 4 * kTiers[3].spanMs);

        for (int tier = 1; tier < kTierCount; ++tier) {
            const qint64 span = kTiers[tier].spanMs;
            const TimeRange range{kNoon, kNoon + 2 * kTiers[3].spanMs};
            const HistorySeries series =
                charges(range, static_cast<int>((range.toMs - range.fromMs) / span));
            QCOMPARE(series.timeMs.size(), static_cast<int>((range.toMs - range.fromMs) / span));
            QCOMPARE(series.spanMs.at(0), span);
            const ValueRange& first = series.values.at(0).at(0);
            const double count = double(span) / interval;
            QVERIFY(qAbs(first.mean - (100 - 60 / count)) < 0.01);
            QCOMPARE(first.least, 40.0);
            QCOMPARE(first.most, 100.0);
            QCOMPARE(series.state.at(0).source, OutputSource::Battery);
            QCOMPARE(series.state.at(1).source, OutputSource::Utility);
        }
    }

    // What a desk does with its clock: nothing of it may hide or double a sample.
    void clocksThatJump_data()
    {
        QTest::addColumn<QVector<qint64>>("offsets"); // ms of each sample
        QTest::newRow("set back by an hour") << QVector<qint64>{3600000, 3605000, 0, 5000, 10000};
        QTest::newRow("set back onto itself") << QVector<qint64>{0, 5000, 0, 5000, 0};
        QTest::newRow("a day ahead and back") << QVector<qint64>{0, 86400000, 5000, 86405000};
        QTest::newRow("autumn night, one UTC hour after the other")
            << QVector<qint64>{0, 3600000, 7200000};
    }
    void clocksThatJump()
    {
        QFETCH(QVector<qint64>, offsets);
        for (int i = 0; i < offsets.size(); ++i) {
            write({sampleAt(kNoon + offsets.at(i), i)});
            rollUp(kNoon + 10 * kMsPerDay); // in between, as a long run does
        }
        const TimeRange range{kNoon - 1000, kNoon + 2 * kMsPerDay};
        QCOMPARE(charges(range, 1000000000).timeMs.size(), offsets.size());
        quint32 counted = 0;
        QSqlQuery* rows = m_store->run(QStringLiteral("SELECT data FROM sixhours"));
        while (rows && rows->next()) {
            Bucket bucket;
            QVERIFY(decodeBucket(rows->value(0).toByteArray(), bucket));
            counted += bucket.count;
        }
        QCOMPARE(int(counted), offsets.size());
    }

    // Old parts come from coarse tiers, the last moments from fine ones; a gap stays a gap.
    void tiersAreSeamless()
    {
        QVector<Sample> samples;
        for (qint64 t = 0; t < 3 * kMsPerHour; t += 30000)
            if (t < kMsPerHour || t >= 2 * kMsPerHour)
                samples += sampleAt(kNoon + t, 70);
        write(samples);
        const qint64 now = kNoon + 3 * kMsPerHour;
        rollUp(now);
        while (m_store->forgetSome(0, now - kMsPerDay * 2 + 1)) {
        }
        QVERIFY(m_store->run(QStringLiteral("DELETE FROM samples WHERE t < ?"),
                             {kNoon + 2 * kMsPerHour}));
        const HistorySeries series = charges({kNoon, now}, 100000);
        qint64 last = -1;
        int full = 0;
        for (int i = 0; i < series.timeMs.size(); ++i) {
            QVERIFY(series.timeMs.at(i) > last);
            last = series.timeMs.at(i);
            full += series.spanMs.at(i) == 0 ? 1 : 0;
            const qint64 t = last - kNoon;
            QVERIFY(t < kMsPerHour || t >= 2 * kMsPerHour);
        }
        QCOMPARE(full, 120);
        QCOMPARE(series.timeMs.size(), 120 + 60);
    }

    void oldRowsAreForgotten()
    {
        write({sampleAt(kNoon, 1), sampleAt(kNoon + 3 * kMsPerDay, 2)});
        while (m_store->forgetSome(0, kNoon + 2 * kMsPerDay)) {
        }
        QCOMPARE(m_store->errorText(), QString());
        const auto left = charges({0, kNoon + 10 * kMsPerDay}, 1000000000);
        QCOMPARE(left.timeMs, QVector<qint64>{kNoon + 3 * kMsPerDay});
    }

    void journalIsFiltered()
    {
        JournalEntry entry;
        entry.key = newJournalKey();
        entry.device = kName;
        entry.kind = JournalKind::Outage;
        entry.severity = Urgency::Alarm;
        entry.text = QString("100 % \"quoted\"") + QChar::Null;
        entry.fact = QStringLiteral("outage");
        entry.onsetMs = kNoon;
        const auto op = [](HistoryRecord::Kind kind, const JournalEntry& e) {
            return HistoryRecord{
                kind, e.device, {}, e.onsetMs, {}, QSharedPointer<const JournalEntry>::create(e)};
        };
        JournalEntry login;
        login.key = newJournalKey();
        login.kind = JournalKind::Operator;
        login.isMoment = true;
        login.operatorName = QStringLiteral("anna");
        login.onsetMs = kNoon + 1000;
        m_batches->write(
            {"w",
             1,
             {op(HistoryRecord::Kind::Begin, entry), op(HistoryRecord::Kind::Begin, login)}});
        HistoryQueries queries(*m_store);
        QCOMPARE(queries.openEntries("north").size(), 1);

        JournalEntry end;
        end.key = entry.key;
        end.endMs = kNoon + 60000;
        end.lowestCharge = 31.5;
        end.acknowledgedBy = QStringLiteral("anna");
        end.acknowledgedMs = kNoon + 70000;
        m_batches->write(
            {"w",
             2,
             {op(HistoryRecord::Kind::End, end), op(HistoryRecord::Kind::Acknowledge, end)}});
        QVERIFY2(queries.openEntries("north").isEmpty(), qPrintable(m_store->errorText()));
        const auto outages = queries.outages(kName, {kNoon + 50000, kNoon + 51000});
        QCOMPARE(outages.size(), 1);
        QCOMPARE(*outages.at(0).lowestCharge, 31.5);
        QCOMPARE(*outages.at(0).endMs, kNoon + 60000);

        const auto count = [&](const std::function<void(JournalFilter&)>& choose) {
            JournalFilter filter;
            choose(filter);
            const auto found = queries.journal(filter);
            return queries.journalCount(filter) == found.size() ? found.size() : -1;
        };
        QCOMPARE(count([](JournalFilter&) {}), 2);
        QCOMPARE(count([](JournalFilter& f) { f.text = "00 % \"QUO"; }), 1);
        QCOMPARE(count([](JournalFilter& f) { f.text = "1_0"; }), 0);
        QCOMPARE(count([](JournalFilter& f) { f.device = kName; }), 1);
        QCOMPARE(count([](JournalFilter& f) { f.kinds = {JournalKind::Operator}; }), 1);
        QCOMPARE(count([](JournalFilter& f) { f.atLeast = Urgency::Alarm; }), 1);
        QCOMPARE(count([](JournalFilter& f) { f.onlyUnacknowledged = true; }), 1);
        QCOMPARE(count([](JournalFilter& f) { f.toMs = kNoon + 1; }), 1);
        QCOMPARE(count([](JournalFilter& f) { f.fromMs = kNoon + 60001; }), 0);
    }

    void readersAskInTheirThread()
    {
        write({sampleAt(kNoon, 1)});
        HistoryReader reader(m_store->address());
        QStringList answers;
        const auto ask = [&] {
            reader.ask<QVector<StoredDevice>>(
                this, [](HistoryQueries& queries) { return queries.devices(); },
                [&](const QVector<StoredDevice>& devices, const QString& error) {
                    answers += devices.isEmpty() ? error : devices.at(0).name;
                });
        };
        ask(); // of these, two wait while the first connects
        ask();
        ask();
        QTRY_COMPARE(answers, (QStringList{kName, kName, kName}));
        ask();
        QTRY_COMPARE(answers.value(3), QString(kName));

        QString fault;
        StoreAddress nowhere;
        nowhere.path = m_folder.filePath("missing.db");
        HistoryReader lost(nowhere);
        lost.ask<int>(
            this, [](HistoryQueries&) { return 1; },
            [&](const int& answer, const QString& error) {
                fault = QString::number(answer) + error;
            });
        QTRY_VERIFY2(fault.startsWith("0there is no history yet"), qPrintable(fault));
    }
};

QTEST_GUILESS_MAIN(TestHistoryStore)
#include "tst_historystore.moc"

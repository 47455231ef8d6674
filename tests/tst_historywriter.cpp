// What happens while the store does not take anything: nothing is lost, nothing counts twice, and
// it is told once.

#include "history/historyqueries.h"
#include "history/historywriter.h"
#include "support/postgresfixture.h"

#include <QDir>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace {

constexpr int kLimitMs = 30000;
constexpr rlim_t kFewBytes = 100;
const QString kName = QStringLiteral("Rack 3");

JournalEntry entryOf(int number)
{
    JournalEntry entry;
    entry.key = newJournalKey();
    entry.device = kName;
    entry.kind = JournalKind::Alarm;
    entry.text = QString::number(number);
    entry.onsetMs = 1700000000000 + number;
    return entry;
}

// Another program that holds the write lock of the file.
class Locker
{
public:
    explicit Locker(const QString& path)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "locker");
        database.setDatabaseName(path);
        database.open();
        QSqlQuery(database).exec("BEGIN EXCLUSIVE");
    }
    ~Locker()
    {
        QSqlDatabase::database("locker").close();
        QSqlDatabase::removeDatabase("locker");
    }
};

void limitFileSize(rlim_t bytes)
{
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

class TestHistoryWriter : public QObject
{
    Q_OBJECT

private:
    PostgresFixture m_postgres;
    QString m_startFault;
    std::unique_ptr<QTemporaryDir> m_folder;
    HistoryWriterOptions m_options;
    int m_added = 0;

    void add(HistoryWriter& writer, int count)
    {
        for (int i = 0; i < count; ++i, ++m_added) {
            writer.begin(entryOf(m_added), "nut://h/u");
            writer.addSample(kName, "nut://h/u", {1700000000000 + m_added, LinkState::Live, {}});
        }
    }
    // Events and samples in the store, or -1 where it cannot be read. Each event is there once.
    QPair<int, int> stored()
    {
        const auto store = HistoryStore::make(m_options.store);
        if (!store->open(HistoryStore::Access::Read))
            return {-1, -1};
        HistoryQueries queries(*store);
        QSet<QString> texts;
        const auto entries = queries.journal({});
        for (const JournalEntry& entry : entries)
            texts += entry.text;
        const auto device = queries.device(kName);
        const int samples =
            device ? queries.readings(device->id, {0, 1800000000000}, 100000).size() : 0;
        return {texts.size() == entries.size() ? texts.size() : -1, samples};
    }
    QPair<int, int> all() const { return {m_added, m_added}; }
    int spooled() const
    {
        qint64 bytes = 0;
        for (const QFileInfo& file : QDir(m_options.spoolFolder).entryInfoList({"*.spool"}))
            bytes += file.size();
        return static_cast<int>(bytes);
    }

private slots:
    void initTestCase()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        m_startFault = m_postgres.start();
    }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_added = 0;
        m_options = {};
        m_options.store.path = m_folder->filePath("data/history.db");
        m_options.spoolFolder = m_folder->filePath("spool");
        m_options.commitMs = 50;
        m_options.retryMs = 100;
    }

    void fileThatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("told");
        QTest::newRow("locked") << "locked"
                                << "is locked by another program";
        QTest::newRow("full disk") << "full"
                                   << "the disk";
        QTest::newRow("no history") << "garbage"
                                    << "is no history";
    }
    void fileThatCannotBeWritten()
    {
        QFETCH(QString, fault);
        QFETCH(QString, told);
        HistoryWriter writer(m_options);
        QSignalSpy faults(&writer, &HistoryWriter::storeFault);
        QSignalSpy recoveries(&writer, &HistoryWriter::storeRecovered);
        const QString path = m_options.store.path;
        if (fault == "garbage") {
            QDir().mkpath(m_folder->filePath("data"));
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray(100000, 'x'));
        } else {
            writer.start();
            add(writer, 10);
            QTRY_COMPARE_WITH_TIMEOUT(stored(), all(), kLimitMs);
        }
        std::unique_ptr<Locker> locker;
        if (fault == "locked")
            locker = std::make_unique<Locker>(path);
        if (fault == "full")
            limitFileSize(kFewBytes);
        writer.start();
        add(writer, 200);
        QTRY_COMPARE_WITH_TIMEOUT(faults.size(), 1, kLimitMs);
        QVERIFY2(faults.at(0).at(0).toString().contains(told),
                 qPrintable(faults.at(0).at(0).toString()));
        add(writer, 200);
        if (fault != "full")
            QTRY_VERIFY_WITH_TIMEOUT(spooled() > 0, kLimitMs);
        QTest::qWait(500);
        QCOMPARE(faults.size(), 1);
        QCOMPARE(recoveries.size(), 0);

        locker.reset();
        limitFileSize(RLIM_INFINITY);
        if (fault == "garbage")
            QVERIFY(QFile::rename(path, path + ".old"));
        QTRY_COMPARE_WITH_TIMEOUT(recoveries.size(), 1, kLimitMs);
        QTRY_COMPARE_WITH_TIMEOUT(stored(), all(), kLimitMs);
        QCOMPARE(spooled(), 0);
        QCOMPARE(writer.lostSamples(), 0u);
    }

    void serverThatGoesAway_data()
    {
        QTest::addColumn<bool>("frozen");
        QTest::addColumn<bool>("deskRestarts");
        QTest::newRow("stopped") << false << false;
        QTest::newRow("stopped, and the desk ends meanwhile") << false << true;
        QTest::newRow("frozen") << true << false;
    }
    void serverThatGoesAway()
    {
        QFETCH(bool, frozen);
        QFETCH(bool, deskRestarts);
        QCOMPARE(m_startFault, QString());
        QCOMPARE(m_postgres.clear(), QString());
        m_options.store = m_postgres.address();
        auto writer = std::make_unique<HistoryWriter>(m_options);
        QSignalSpy faults(writer.get(), &HistoryWriter::storeFault);
        writer->start();
        add(*writer, 10);
        QTRY_COMPARE_WITH_TIMEOUT(stored(), all(), kLimitMs);

        if (frozen)
            m_postgres.freezeServer(true);
        else
            m_postgres.stopServer();
        add(*writer, 300);
        QTRY_COMPARE_WITH_TIMEOUT(faults.size(), 1, kLimitMs);
        QVERIFY2(faults.at(0).at(0).toString().contains("does not answer"),
                 qPrintable(faults.at(0).at(0).toString()));
        add(*writer, 300);
        QTRY_COMPARE_WITH_TIMEOUT(writer->waiting(), 0, kLimitMs);
        QVERIFY(spooled() > 0);
        if (deskRestarts) {
            writer.reset();
            writer = std::make_unique<HistoryWriter>(m_options);
            writer->start();
        }
        if (frozen)
            m_postgres.freezeServer(false);
        else
            QCOMPARE(m_postgres.startServer(), QString());
        QTRY_COMPARE_WITH_TIMEOUT(stored(), all(), kLimitMs);
        QTRY_COMPARE_WITH_TIMEOUT(spooled(), 0, kLimitMs);
        QCOMPARE(writer->lostSamples(), 0u);
    }

    // Where there is no room at all the newest samples and every event stay.
    void memoryIsBounded()
    {
        m_options.store.path = QStringLiteral("/dev/null/history.db");
        m_options.spoolFolder = QStringLiteral("/dev/null/spool");
        m_options.mostSamples = 100;
        HistoryWriter writer(m_options);
        writer.start();
        add(writer, 500);
        QTRY_COMPARE_WITH_TIMEOUT(writer.waiting(), 100 + 500, kLimitMs);
        QTRY_COMPARE_WITH_TIMEOUT(writer.lostSamples(), 400u, kLimitMs);
    }

    // A crash in the middle of an append, and two desks of one user.
    void spoolsAreTakenOver()
    {
        const QString folder = m_folder->filePath("spool");
        HistoryBatch batch{"w", 1, {}};
        batch.records += HistoryRecord{HistoryRecord::Kind::Sample, kName, {}, 1, {}, {}};
        {
            HistorySpool first(folder);
            HistorySpool second(folder);
            QVERIFY(first.append(batch));
            batch.number = 2;
            QVERIFY(second.append(batch));
        }
        QFile torn(folder + "/2.spool");
        QVERIFY(torn.open(QIODevice::Append));
        torn.write("torn");
        torn.close();
        HistorySpool next(folder);
        for (quint64 number : {1u, 2u}) {
            const auto found = next.first();
            QVERIFY(found);
            QCOMPARE(found->number, number);
            next.dropFirst();
        }
        QVERIFY(next.isEmpty());
        HistorySpool small(m_folder->filePath("small"), 10);
        QVERIFY(!small.append(batch));
        QVERIFY(small.errorText().contains("full"));
    }
};

QTEST_GUILESS_MAIN(TestHistoryWriter)
#include "tst_historywriter.moc"

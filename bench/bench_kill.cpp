// Kills a writer under full load again and again and looks at what is left:
//     bench_kill [ROUNDS] [STORE]
// STORE as in the configuration; without it a file in a temporary folder.

#include "history/historyqueries.h"
#include "history/historywriter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>

#include <csignal>
#include <cstdio>

namespace {

constexpr int kRounds = 100;
constexpr int kDevices = 500;
constexpr int kReportMs = 10;       // between the child's reports of what it has handed over
constexpr int kBurst = 20;          // samples per report: 2000/s, twenty times 500 devices at 5 s
constexpr qint64 kAllowedMs = 1000; // that a kill may cost
const char kChildOption[] = "--child";

// Hands numbered samples and entries to the writer and says how far it is.
int runChild(const QString& store, const QString& spool, qint64 number)
{
    HistoryWriterOptions options;
    options.store = parseStoreAddress(store).address;
    options.spoolFolder = spool;
    HistoryWriter writer(options);
    writer.start();
    for (;;) {
        for (int i = 0; i < kBurst; ++i, ++number) {
            Sample sample{number, LinkState::Live, {}};
            for (const Quantity& quantity : quantities())
                setQuantity(sample.reading, quantity, static_cast<double>(number % 1000));
            writer.addSample(QString::number(number % kDevices), {}, sample);
        }
        JournalEntry entry;
        entry.key = newJournalKey();
        entry.text = QString::number(number);
        entry.onsetMs = number;
        writer.begin(entry);
        std::printf("%lld %lld\n", static_cast<long long>(number),
                    static_cast<long long>(QDateTime::currentMSecsSinceEpoch()));
        std::fflush(stdout);
        QThread::msleep(kReportMs);
    }
}

struct Stored {
    qint64 last = -1;
    qint64 count = 0;
    qint64 entries = 0;
    QString fault;
};

Stored look(const QString& address)
{
    Stored stored;
    const auto store = HistoryStore::make(parseStoreAddress(address).address);
    const auto number = [&](const char* sql, int column) -> qint64 {
        QSqlQuery* query = store->run(QString::fromLatin1(sql));
        return query && query->next() ? query->value(column).toLongLong() : -1;
    };
    if (!store->open(HistoryStore::Access::Read)) {
        // Killed before it was made.
        if (!store->errorText().startsWith(QLatin1String("there is no history yet")))
            stored.fault = store->errorText();
        return stored;
    }
    stored.last = number("SELECT max(t), count(*) FROM samples", 0);
    stored.count = number("SELECT max(t), count(*) FROM samples", 1);
    stored.entries = number("SELECT count(*) FROM journal", 0);
    if (store->address().kind == StoreAddress::Kind::Sqlite) {
        QSqlQuery* check = store->run(QStringLiteral("PRAGMA integrity_check"));
        const QString word = check && check->next() ? check->value(0).toString() : QString();
        if (word != QLatin1String("ok"))
            stored.fault = QStringLiteral("damaged: ") + word + store->errorText();
    }
    return stored;
}

struct Round {
    qint64 lostMs = 0;
    QString fault;
};

// The numbers before the last stored one must all be there, and none twice.
Round runRound(const QString& store, const QString& spool, qint64& number, qint64& expectedBefore)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {kChildOption, store, spool, QString::number(number)});
    child.waitForReadyRead();
    QThread::msleep(300 + QRandomGenerator::global()->bounded(1500));
    ::kill(static_cast<pid_t>(child.processId()), SIGKILL);
    const qint64 killedMs = QDateTime::currentMSecsSinceEpoch();
    child.waitForFinished();
    const Stored stored = look(store);
    Round round;
    round.fault = stored.fault;
    const qint64 written = stored.last + 1 - number;
    if (round.fault.isEmpty() && written >= 0 && stored.count != expectedBefore + written)
        round.fault = QStringLiteral("%1 samples where %2 should be")
                          .arg(stored.count)
                          .arg(expectedBefore + written);
    qint64 oldestLostMs = killedMs;
    qint64 handed = number;
    for (const QByteArray& line : child.readAll().split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() != 2)
            continue;
        handed = words.at(0).toLongLong();
        if (handed - 1 > stored.last)
            oldestLostMs = std::min(oldestLostMs, words.at(1).toLongLong());
    }
    round.lostMs = killedMs - oldestLostMs;
    expectedBefore = stored.count;
    number = std::max(handed, stored.last + 1) + 1000;
    return round;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.value(1) == QLatin1String(kChildOption))
        return runChild(arguments.value(2), arguments.value(3), arguments.value(4).toLongLong());

    const int rounds = arguments.size() > 1 ? arguments.at(1).toInt() : kRounds;
    QTemporaryDir folder;
    const QString store =
        arguments.value(2, QStringLiteral("sqlite:") + folder.filePath("history.db"));
    QTextStream out(stdout);
    qint64 number = 1;
    qint64 expected = 0;
    qint64 worstMs = 0;
    int bad = 0;
    for (int i = 0; i < rounds; ++i) {
        const Round round = runRound(store, folder.filePath("spool"), number, expected);
        worstMs = std::max(worstMs, round.lostMs);
        if (!round.fault.isEmpty() || round.lostMs > kAllowedMs) {
            ++bad;
            out << "round " << i << ": lost " << round.lostMs << " ms " << round.fault << '\n';
        }
    }
    out << rounds << " kills, " << expected << " samples; a kill cost at most " << worstMs
        << " ms; " << bad << " rounds not as promised\n";
    return bad == 0 ? 0 : 1;
}

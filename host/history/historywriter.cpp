#include "history/historywriter.h"

#include "connectors/bootclock.h"
#include "history/batchstore.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QThread>
#include <QUuid>

#include <algorithm>

namespace {

constexpr std::size_t kBatchRecords = 5000; // at most in one transaction
constexpr int kSpansPerStep = 200;
constexpr int kMostEntries = 200000; // that wait in memory where even the spool is full
// What is old is forgotten only when the clock has been steady for a while: one that is wrong for
// a moment must not cost years.
constexpr qint64 kForgetDelayMs = 15 * kMsPerMinute;
constexpr qint64 kForgetPauseMs = 10 * kMsPerMinute;
constexpr qint64 kClockJumpMs = kMsPerMinute;
// A server that is silent for so long is not waited for: what happens must get to the disk.
constexpr qint64 kSilenceMs = 8000;
constexpr unsigned long kEndMs = 200; // for which the end of the program waits for the store
constexpr int kWatchMs = 1000;

} // namespace

HistoryWriter::HistoryWriter(const HistoryWriterOptions& options, QObject* parent)
    : QObject(parent)
    , m_options(options)
    , m_store(HistoryStore::make(options.store))
    , m_writer(newJournalKey())
    , m_spoolsSamples(options.store.kind == StoreAddress::Kind::Postgres)
{
    connect(&m_watch, &QTimer::timeout, this, &HistoryWriter::watchStore);
    m_watch.start(kWatchMs);
}

HistoryWriter::~HistoryWriter()
{
    stop();
}

void HistoryWriter::start()
{
    if (m_thread)
        return;
    m_isStopping = false;
    m_thread = QThread::create([this] { work(); });
    m_thread->setObjectName(QStringLiteral("history"));
    m_thread->start();
}

void HistoryWriter::stop()
{
    if (!m_thread)
        return;
    {
        QMutexLocker locker(&m_mutex);
        m_isStopping = true;
    }
    m_wake.wakeAll();
    while (!m_thread->wait(kEndMs)) // what is not written by then goes to the spool
        m_store->abort();
    delete m_thread;
    m_thread = nullptr;
}

int HistoryWriter::waiting() const
{
    QMutexLocker locker(&m_mutex);
    return static_cast<int>(m_samples.size() + m_entries.size());
}

// Adding

void HistoryWriter::addSample(const QString& device, const QString& address, const Sample& sample)
{
    add({HistoryRecord::Kind::Sample, device, address, sample.timeMs, encodeSample(sample), {}});
}

void HistoryWriter::addInfo(const QString& device, const QString& address, qint64 timeMs,
                            const UpsReading& reading)
{
    add({HistoryRecord::Kind::Info, device, address, timeMs, encodeInfo(reading), {}});
}

void HistoryWriter::begin(const JournalEntry& entry, const QString& address)
{
    add({HistoryRecord::Kind::Begin,
         entry.device,
         address,
         entry.onsetMs,
         {},
         QSharedPointer<const JournalEntry>::create(entry)});
}

void HistoryWriter::end(const QString& key, qint64 endMs, const QString& message,
                        std::optional<double> lowestCharge, Urgency atLeast)
{
    JournalEntry entry;
    entry.key = key;
    entry.endMs = endMs;
    entry.message = message;
    entry.lowestCharge = lowestCharge;
    entry.severity = atLeast;
    add({HistoryRecord::Kind::End,
         {},
         {},
         endMs,
         {},
         QSharedPointer<const JournalEntry>::create(entry)});
}

void HistoryWriter::acknowledge(const QString& key, const QString& operatorName, qint64 timeMs,
                                const QString& note)
{
    JournalEntry entry;
    entry.key = key;
    entry.acknowledgedBy = operatorName;
    entry.acknowledgedMs = timeMs;
    entry.acknowledgeNote = note;
    add({HistoryRecord::Kind::Acknowledge,
         {},
         {},
         timeMs,
         {},
         QSharedPointer<const JournalEntry>::create(entry)});
}

void HistoryWriter::add(HistoryRecord record)
{
    QMutexLocker locker(&m_mutex);
    std::deque<HistoryRecord>& queue = record.isSample() ? m_samples : m_entries;
    queue.push_back(std::move(record));
    if (m_samples.size() > static_cast<std::size_t>(m_options.mostSamples)) {
        m_samples.pop_front();
        ++m_lost;
    }
    if (queue.size() == kBatchRecords)
        m_wake.wakeAll();
}

// The thread

void HistoryWriter::work()
{
    m_spool = std::make_unique<HistorySpool>(m_options.spoolFolder);
    m_forgetAtMs = bootClockMs() + kForgetDelayMs;
    while (waitForWork()) {
        m_busySinceMs = bootClockMs();
        step();
        maintain();
        m_busySinceMs = 0;
    }
    finish();
    m_batches.reset();
    m_store->close();
    m_spool.reset();
}

bool HistoryWriter::waitForWork()
{
    QMutexLocker locker(&m_mutex);
    const QDeadlineTimer deadline(m_options.commitMs);
    while (!m_isStopping &&
           (m_isFaulty || std::max(m_samples.size(), m_entries.size()) < kBatchRecords) &&
           m_wake.wait(&m_mutex, deadline)) {
    }
    return !m_isStopping;
}

QVector<HistoryRecord> HistoryWriter::takeWaiting(bool withSamples)
{
    QMutexLocker locker(&m_mutex);
    QVector<HistoryRecord> records;
    const auto take = [&records](std::deque<HistoryRecord>& queue) {
        for (; !queue.empty() && records.size() < int(kBatchRecords); queue.pop_front())
            records += std::move(queue.front());
    };
    take(m_entries);
    if (withSamples)
        take(m_samples);
    return records;
}

void HistoryWriter::step()
{
    if (isReady()) {
        writeOrPark(takeWaiting(true));
        return;
    }
    const QVector<HistoryRecord> records = takeWaiting(m_spoolsSamples);
    if (!records.isEmpty())
        park({m_writer, ++m_number, records});
}

// What the store does not take now must outlive the program.
void HistoryWriter::finish()
{
    // Another machine's store may be slow to be reached.
    const bool mayOpen = m_batches || m_options.store.kind == StoreAddress::Kind::Sqlite;
    m_nextTryMs = 0;
    for (int before = waiting(); before > 0 && mayOpen && isReady(); before = waiting()) {
        writeOrPark(takeWaiting(true));
        if (waiting() >= before)
            break;
    }
    m_spoolsSamples = true;
    for (int before = waiting(); before > 0; before = waiting()) {
        park({m_writer, ++m_number, takeWaiting(true)});
        if (waiting() >= before)
            break;
    }
}

bool HistoryWriter::isReady()
{
    return (!m_options.mayWrite || m_options.mayWrite()) && openStore() && replaySpool();
}

bool HistoryWriter::openStore()
{
    if (m_batches)
        return true;
    if (bootClockMs() < m_nextTryMs)
        return false;
    if (m_store->open(HistoryStore::Access::Write)) {
        m_batches = std::make_unique<BatchStore>(*m_store, m_options.site);
        if (!m_options.keepsHouse || m_batches->rollup().resume())
            return true;
    }
    tellFault(m_store->errorText());
    return false;
}

bool HistoryWriter::replaySpool()
{
    while (const auto batch = m_spool->first()) {
        if (!m_batches->write(*batch)) {
            tellFault(m_store->errorText());
            return false;
        }
        m_written += static_cast<quint64>(batch->records.size());
        m_spool->dropFirst();
        m_busySinceMs = bootClockMs();
    }
    return true;
}

void HistoryWriter::writeOrPark(QVector<HistoryRecord> records)
{
    HistoryBatch batch{m_writer, m_number + 1, std::move(records)};
    if (!batch.records.isEmpty()) {
        ++m_number;
        if (!m_batches->write(batch)) {
            tellFault(m_store->errorText());
            park(std::move(batch));
            return;
        }
        m_written += static_cast<quint64>(batch.records.size());
        emit committed();
    }
    tellRecovered();
}

// Entries go to the disk, and so do samples where the store is another machine's and may be away
// for long. The samples of a file that cannot be written would meet the same full disk.
void HistoryWriter::park(HistoryBatch batch)
{
    if (!m_spoolsSamples) {
        const auto firstSample =
            std::stable_partition(batch.records.begin(), batch.records.end(),
                                  [](const HistoryRecord& r) { return !r.isSample(); });
        const auto entries = static_cast<int>(firstSample - batch.records.begin());
        putBack(batch.records.mid(entries));
        batch.records.resize(entries);
    }
    if (!batch.records.isEmpty() && !m_spool->append(batch))
        putBack(batch.records);
}

void HistoryWriter::putBack(const QVector<HistoryRecord>& records)
{
    QMutexLocker locker(&m_mutex);
    for (auto it = records.crbegin(); it != records.crend(); ++it) {
        std::deque<HistoryRecord>& queue = it->isSample() ? m_samples : m_entries;
        if (queue.size() < std::size_t(it->isSample() ? m_options.mostSamples : kMostEntries))
            queue.push_front(*it);
        else
            m_lost += it->isSample() ? 1 : 0; // the oldest
    }
}

void HistoryWriter::maintain()
{
    if (!m_batches || !m_options.keepsHouse)
        return;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (m_batches->rollup().step(now, kSpansPerStep) < 0)
        tellFault(m_store->errorText());
    else
        forgetOld(now);
}

void HistoryWriter::forgetOld(qint64 nowMs)
{
    const qint64 boot = bootClockMs();
    const qint64 offset = nowMs - boot;
    if (qAbs(offset - m_clockOffsetMs) > kClockJumpMs)
        m_forgetAtMs = boot + kForgetDelayMs;
    m_clockOffsetMs = offset;
    if (boot < m_forgetAtMs)
        return;
    const auto tier = static_cast<std::size_t>(m_forgetTier);
    if (m_store->forgetSome(m_forgetTier, nowMs - m_options.keep[tier]))
        return;
    m_forgetTier = (m_forgetTier + 1) % kTierCount;
    if (m_forgetTier == 0)
        m_forgetAtMs = boot + kForgetPauseMs;
}

// Faults

void HistoryWriter::watchStore()
{
    const qint64 since = m_busySinceMs;
    if (since > 0 && bootClockMs() - since > kSilenceMs)
        m_store->abort();
}

void HistoryWriter::tellFault(const QString& text)
{
    m_batches.reset();
    m_store->close();
    m_nextTryMs = bootClockMs() + m_options.retryMs;
    if (!m_isFaulty)
        m_lostBefore = m_lost;
    m_isFaulty = true;
    if (text == m_faultText)
        return;
    m_faultText = text;
    emit storeFault(
        tr("The history cannot be written: %1. Events are kept on disk until it can.").arg(text));
}

void HistoryWriter::tellRecovered()
{
    if (!m_isFaulty)
        return;
    m_isFaulty = false;
    m_faultText.clear();
    const quint64 lost = m_lost - m_lostBefore;
    emit storeRecovered(
        lost == 0 ? tr("The history is written again; nothing is missing.")
                  : tr("The history is written again; %1 samples are missing.").arg(lost));
}

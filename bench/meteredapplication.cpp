#include "meteredapplication.h"

#include <QAbstractEventDispatcher>
#include <QEvent>
#include <QMap>
#include <QThread>

#include <algorithm>
#include <ctime>

namespace {

constexpr double kNsPerMs = 1e6;

qint64 threadCpuNs()
{
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return qint64(t.tv_sec) * 1000000000 + t.tv_nsec;
}

} // namespace

MeteredApplication::MeteredApplication(int& argc, char** argv)
    : QApplication(argc, argv)
{
    m_clock.start();
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &MeteredApplication::endStretch);
}

void MeteredApplication::restart()
{
    m_busy = false;
    m_events.clear();
    m_works.clear();
    m_busiest = m_longest = {};
    m_count = 0;
}

int MeteredApplication::countAbove(double ms) const
{
    return static_cast<int>(
        std::count_if(m_works.begin(), m_works.end(), [ms](float work) { return work > ms; }));
}

bool MeteredApplication::notify(QObject* receiver, QEvent* event)
{
    if (QThread::currentThread() != thread())
        return QApplication::notify(receiver, event);
    if (!m_busy) {
        m_busy = true;
        m_wallStart = m_clock.nsecsElapsed();
        m_cpuStart = threadCpuNs();
    }
    if (m_depth > 0)
        return QApplication::notify(receiver, event);
    const char* name = receiver->metaObject()->className();
    const int type = event->type();
    const qint64 start = m_clock.nsecsElapsed();
    ++m_depth;
    const bool result = QApplication::notify(receiver, event);
    --m_depth;
    m_events.push_back({name, type, m_clock.nsecsElapsed() - start});
    return result;
}

void MeteredApplication::endStretch()
{
    if (!m_busy)
        return;
    m_busy = false;
    ++m_count;
    Stretch stretch;
    stretch.wall = static_cast<double>(m_clock.nsecsElapsed() - m_wallStart) / kNsPerMs;
    stretch.cpu = static_cast<double>(threadCpuNs() - m_cpuStart) / kNsPerMs;
    m_works.push_back(static_cast<float>(stretch.cpu));
    if (stretch.cpu > m_busiest.cpu || stretch.wall > m_longest.wall)
        stretch.work = describeWork();
    if (stretch.cpu > m_busiest.cpu)
        m_busiest = stretch;
    if (stretch.wall > m_longest.wall)
        m_longest = stretch;
    m_events.clear();
}

QString MeteredApplication::describeWork() const
{
    QMap<QString, qint64> sums;
    for (const Event& event : m_events)
        sums[QStringLiteral("%1/%2").arg(QLatin1String(event.receiver)).arg(event.type)] +=
            event.ns;
    QVector<QPair<qint64, QString>> sorted;
    for (auto it = sums.cbegin(); it != sums.cend(); ++it)
        sorted.push_back({it.value(), it.key()});
    std::sort(sorted.rbegin(), sorted.rend());
    constexpr int kMostNamed = 4;
    QStringList words;
    for (const auto& entry : sorted.mid(0, kMostNamed))
        words << QStringLiteral("%1 %2 ms").arg(entry.second).arg(double(entry.first) / kNsPerMs);
    return words.join(QStringLiteral(", "));
}

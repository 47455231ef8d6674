#include "peers/contest.h"

#include <QJsonArray>

#include <algorithm>
#include <ctime>

namespace {

constexpr double kMsPerSecond = 1e3;
constexpr double kNsPerMs = 1e6;
constexpr int kWarmingSteps = 50; // caches, and charts that fill up

QString shown(const Spread& spread, int decimals)
{
    return QStringLiteral("%1 (%2 to %3)")
        .arg(spread.median, 0, 'f', decimals)
        .arg(spread.least, 0, 'f', decimals)
        .arg(spread.most, 0, 'f', decimals);
}

QJsonObject jsonOf(const Spread& spread)
{
    return {{"median", spread.median}, {"least", spread.least}, {"most", spread.most}};
}

} // namespace

double cpuMs()
{
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) * kMsPerSecond + static_cast<double>(t.tv_nsec) / kNsPerMs;
}

Spread spreadOf(QVector<double> values)
{
    if (values.isEmpty())
        return {};
    std::sort(values.begin(), values.end());
    return {values.at(values.size() / 2), values.first(), values.last()};
}

Contest::Contest(const QString& title, const QVector<Work>& works, bool hasLimit, double target)
    : m_title(title)
    , m_works(works)
    , m_hasLimit(hasLimit)
    , m_target(target)
    , m_times(works.size())
{}

void Contest::run(int rounds, int stepsPerRound)
{
    for (const Work& work : m_works)
        for (int i = 0; i < kWarmingSteps; ++i)
            work.step();
    for (int round = 0; round < rounds; ++round)
        for (int number = 0; number < m_works.size(); ++number) {
            const double begin = cpuMs();
            for (int i = 0; i < stepsPerRound; ++i)
                m_works.at(number).step();
            m_times[number] << (cpuMs() - begin) / stepsPerRound;
        }
}

int Contest::fastestPeer() const
{
    const int end = m_works.size() - (m_hasLimit ? 1 : 0);
    int fastest = 1;
    for (int peer = 2; peer < end; ++peer)
        if (spreadOf(m_times.at(peer)).median < spreadOf(m_times.at(fastest)).median)
            fastest = peer;
    return fastest;
}

Spread Contest::ratioTo(int work, int other) const
{
    QVector<double> ratios;
    for (int round = 0; round < m_times.at(work).size(); ++round)
        ratios << m_times.at(work).at(round) / m_times.at(other).at(round);
    return spreadOf(ratios);
}

Spread Contest::ratio() const
{
    return ratioTo(0, fastestPeer());
}

QString Contest::text() const
{
    QString text = m_title + QLatin1Char('\n');
    for (int i = 0; i < m_works.size(); ++i)
        text += QStringLiteral("    %1 %2 ms\n")
                    .arg(m_works.at(i).name, -28)
                    .arg(shown(spreadOf(m_times.at(i)), 4));
    return text + QStringLiteral("    ratio to %1: %2, target %3: %4\n")
                      .arg(m_works.at(fastestPeer()).name, shown(ratio(), 3))
                      .arg(m_target)
                      .arg(isMet() ? "met" : "MISSED");
}

QString Contest::rowHead()
{
    return QStringLiteral("| Work | ours, ms | fastest peer, ms | ratio | bare ratio | target |\n"
                          "|---|---|---|---|---|---|\n");
}

QString Contest::row() const
{
    const int peer = fastestPeer();
    const double limit = m_hasLimit ? ratioTo(m_works.size() - 1, peer).median : 0;
    return QStringLiteral("| %1 | %2 | %3: %4 | %5 | %6 | %7, %8 |\n")
        .arg(m_title)
        .arg(spreadOf(m_times.at(0)).median, 0, 'f', 3)
        .arg(m_works.at(peer).name)
        .arg(spreadOf(m_times.at(peer)).median, 0, 'f', 3)
        .arg(shown(ratio(), 2), m_hasLimit ? QString::number(limit, 'f', 2) : QStringLiteral("-"))
        .arg(m_target)
        .arg(isMet() ? "met" : "missed");
}

QJsonObject Contest::json() const
{
    QJsonObject works;
    for (int i = 0; i < m_works.size(); ++i)
        works[m_works.at(i).name] = jsonOf(spreadOf(m_times.at(i)));
    return {
        {"work", m_title},          {"ms", works},        {"peer", m_works.at(fastestPeer()).name},
        {"ratio", jsonOf(ratio())}, {"target", m_target}, {"met", isMet()}};
}

#ifndef CONTEST_H
#define CONTEST_H

// Measures works against each other in CPU time of the process: in interleaved rounds, so that what
// else the machine does meets all of them alike.
// May touch: works.

#include "peers/work.h"

#include <QJsonObject>
#include <QVector>

// In milliseconds, or without a unit for ratios.
struct Spread {
    double median = 0;
    double least = 0;
    double most = 0;
};
Spread spreadOf(QVector<double> values);
double cpuMs();

class Contest
{
public:
    // Ours first, then its peers; the last one paints the bare minimum where `hasLimit` is set.
    Contest(const QString& title, const QVector<Work>& works, bool hasLimit, double target);

    void run(int rounds, int stepsPerRound);

    bool isMet() const { return ratio().median <= m_target; }
    // Of ours to the fastest peer, within each round.
    Spread ratio() const;
    // A line for each work, then the result.
    QString text() const;
    // A row of a Markdown table: work, ours, fastest peer, ratio, bare ratio, target.
    QString row() const;
    static QString rowHead();
    QJsonObject json() const;

private:
    int fastestPeer() const;
    Spread ratioTo(int work, int other) const;

    QString m_title;
    QVector<Work> m_works;
    bool m_hasLimit;
    double m_target;
    QVector<QVector<double>> m_times; // by work, then by round; ms per step
};

#endif // CONTEST_H

#ifndef TRENDFEED_H
#define TRENDFEED_H

// What all trend charts of a contest show: the same samples at the same time of a clock that steps
// with them.
// May touch: Qt Core.

#include <QSize>
#include <QTime>
#include <QVector>

struct TrendFeed {
    QSize size;
    int series = 4;        // from the fourth on against the right scale, where there are six
    bool clockRuns = true; // the time labels change with every step

    static constexpr double kFullScale = 400;
    static constexpr int kFirstSecond = -40; // of the time axis, around now
    static constexpr int kLastSecond = 60;
    static constexpr int kLabelSeconds = 10;

    bool hasRightScale() const { return series > 4; }
    // As many as our chart keeps: one each 5 px between margins of 1/13.
    int samples() const { return size.width() * 11 / 13 / 5; }
    // A voltage that wanders by a volt or two.
    static double value(int series, int step) { return 40 + 50 * series + (7 * step + series) % 4; }
    QTime now(int step) const { return QTime(12, 0).addSecs(clockRuns ? step : 0); }
    QString label(int step, int second) const
    {
        return now(step).addSecs(second).toString(QStringLiteral("hh:mm:ss"));
    }
};

#endif // TRENDFEED_H

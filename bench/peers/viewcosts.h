#ifndef VIEWCOSTS_H
#define VIEWCOSTS_H

// What device views cost that have no peer: hidden ones, and the first one of a process.
// May touch: the library's views, Qt Widgets.

#include <QString>

// Share of one core, in per cent, that so many views take that were shown and are hidden now.
double idleShare(int views, int seconds);

// CPU ms of one view from its construction to its first paint.
struct OpeningCost {
    double construct = 0;
    double show = 0;
    double paint = 0;
    double total() const { return construct + show + paint; }
    double longest() const { return qMax(construct, qMax(show, paint)); }
};
OpeningCost openView();

// The first two of a process; a process of its own prints them by printOpenings().
struct Openings {
    OpeningCost first;
    OpeningCost second;
};
int printOpenings();
Openings openingsOfProcess(const QString& program, const QString& option);

#endif // VIEWCOSTS_H

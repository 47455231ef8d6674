#ifndef NEARESTNAME_H
#define NEARESTNAME_H

// What somebody may have meant who mistyped a name.
// May touch: Qt Core.

#include <QStringList>

// The name with the fewest letters to change, upper and lower case alike; empty when none is near.
QString nearestName(const QString& typed, const QStringList& names);

// "; did you mean \"outage\"?" to end a complaint with, or nothing.
QString didYouMean(const QString& typed, const QStringList& names);

#endif // NEARESTNAME_H

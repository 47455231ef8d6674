#ifndef STORESCHEMA_H
#define STORESCHEMA_H

// The tables of the history, one list of statements for each version of the schema.
// May touch: Qt Core. {id}, {big}, {blob}, {partitioned} and {clustered} are words of the database.

#include <QStringList>
#include <QVector>

// Statements that lead from version n to n + 1 stand at index n.
const QVector<QStringList>& schemaSteps();

#endif // STORESCHEMA_H

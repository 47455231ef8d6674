#ifndef NUTCOMMANDS_H
#define NUTCOMMANDS_H

// Which instant command of NUT carries out which command of the operator.
// May touch: Qt Core, commands, readings. Pure functions, no socket.

#include "connectors/nut/nutreading.h"
#include "connectors/upscommand.h"

#include <QByteArray>
#include <QList>
#include <QVector>

struct NutSetting {
    QByteArray variable;
    QByteArray value;
};

struct NutCommandPlan {
    QByteArray command;         // empty: the device offers none that would do
    QVector<NutSetting> before; // to set first, in this order
    QList<QByteArray> lookedFor;
    bool startDelayIsFixed = false; // standby cannot be told how long to last
};

// offered: what the device lists as its commands; writable: the variables that can be set, with
// their values. A setting that has the wanted value already is left alone.
NutCommandPlan planNutCommand(const UpsCommand& command, const QList<QByteArray>& offered,
                              const NutVariables& writable);

#endif // NUTCOMMANDS_H

#ifndef COMMAND_H
#define COMMAND_H

// upsdesk command ADDRESS NAME [VALUE]: one command, asked about first, followed to its result.
// May touch: connectors by their base class.

#include <QStringList>

int runCommand(const QStringList& arguments);

#endif // COMMAND_H

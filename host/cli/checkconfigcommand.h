#ifndef CHECKCONFIGCOMMAND_H
#define CHECKCONFIGCOMMAND_H

// upsdesk check-config [FILE]: says what is wrong in the configuration, line by line.
// May touch: the configuration room.

#include <QStringList>

int runCheckConfig(const QStringList& arguments);

#endif // CHECKCONFIGCOMMAND_H

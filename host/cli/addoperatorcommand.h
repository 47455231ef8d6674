#ifndef ADDOPERATORCOMMAND_H
#define ADDOPERATORCOMMAND_H

// upsdesk add-operator NAME --level N: asks for the password, writes the configuration.
// May touch: the configuration room and the terminal.

#include <QStringList>

int runAddOperator(const QStringList& arguments);

#endif // ADDOPERATORCOMMAND_H

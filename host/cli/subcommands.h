#ifndef SUBCOMMANDS_H
#define SUBCOMMANDS_H

// What upsdesk does beside its window. Each function takes the arguments without the subcommand's
// name, the program's name first, and gives the exit code.
// May touch: see the file of each.

#include <QStringList>

int runProbe(const QStringList& arguments);       // one poll, every value
int runCheck(const QStringList& arguments);       // a plug-in for monitoring systems
int runPicture(const QStringList& arguments);     // one PNG per page; paints
int runCommand(const QStringList& arguments);     // one command, followed to its result
int runAddOperator(const QStringList& arguments); // asks for a password, writes the configuration
int runCheckConfig(const QStringList& arguments); // what is wrong in the configuration
int runExport(const QStringList& arguments);      // what is stored of a device
int runJournal(const QStringList& arguments);     // what happened

#endif // SUBCOMMANDS_H

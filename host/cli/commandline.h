#ifndef COMMANDLINE_H
#define COMMANDLINE_H

// Which of upsdesk's modes a command line asks for; usage texts and exit codes.
// May touch: Qt Core.

#include <QString>
#include <QStringList>

enum ExitCode {
    ExitOk = 0,
    ExitUsage = 2,
    ExitNotReachable = 3,
    ExitRefused = 4,
    ExitResultUnknown = 5 // a command was sent, and nothing tells how it ended
};

QStringList subcommandNames();

// The first argument names the mode; anything else (addresses, options) is the window.
bool isSubcommand(const QString& argument);

// True for a subcommand that paints; all others run without the window system.
bool needsWidgets(const QString& subcommand);

// Runs the subcommand. arguments: all of the program's, the program's name first. The application
// object must exist, and be a QApplication where needsWidgets() says so.
int runSubcommand(const QStringList& arguments);

#endif // COMMANDLINE_H

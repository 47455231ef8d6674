#ifndef CLIPARSER_H
#define CLIPARSER_H

// The arguments of one subcommand, or of the window, and the help that goes with them.
// May touch: Qt Core, the terminal, and where the configuration is.

#include <QCommandLineParser>

class CliParser : public QCommandLineParser
{
public:
    // name: of the subcommand, empty for the window. Its usage, exit codes and examples stand in
    // one table beside this class; options are added by who reads them. --help is there already.
    explicit CliParser(const QString& name);

    // Reads the arguments, the program's name first. False after telling what is wrong with them
    // and how they should look: the caller ends with ExitUsage. --help ends the program.
    bool read(const QStringList& arguments);

    // Also false, for what only the caller can judge.
    bool tellUsage(const QString& fault) const;

    // The same as read(), in silence: what is wrong, or nothing.
    QString fault(const QStringList& arguments);

private:
    QString usageLine() const;
    QString page() const; // what --help prints

    const struct CliUsage& m_usage;
};

#endif // CLIPARSER_H

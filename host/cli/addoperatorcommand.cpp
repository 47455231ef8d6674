// upsdesk add-operator NAME --level N: asks for the password, writes the configuration.
// May touch: the operators room, where the configuration is, the terminal.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/subcommands.h"
#include "config/deskconfig.h"
#include "operators/addoperator.h"
#include "operators/operatoredits.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>
#include <optional>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr int kLongestPassword = 1024;

// A line from the terminal that is not shown while it is typed; from a pipe, simply a line.
SecretText askSecret(const QString& prompt)
{
    const bool atTerminal = isatty(STDIN_FILENO);
    termios before{};
    if (atTerminal) {
        QTextStream(stderr) << prompt << Qt::flush;
        tcgetattr(STDIN_FILENO, &before);
        termios silent = before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    QByteArray line;
    int c = 0;
    while ((c = getchar()) != EOF && c != '\n' && line.size() < kLongestPassword)
        line += static_cast<char>(c);
    if (atTerminal) {
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
        QTextStream(stderr) << '\n';
    }
    SecretText secret(line);
    line.fill('\0');
    return secret;
}

bool isSame(const SecretText& a, const SecretText& b)
{
    return a.toString() == b.toString();
}

// Twice where it is typed. Empty: the two differ, which has been said.
std::optional<SecretText> askPassword()
{
    const SecretText password =
        askSecret(QCoreApplication::translate("AddOperator", "Password (at least %1 characters): ")
                      .arg(kMinPasswordLength));
    if (!isatty(STDIN_FILENO) ||
        isSame(password, askSecret(QCoreApplication::translate("AddOperator", "Once more: "))))
        return password;
    printError(QCoreApplication::translate("AddOperator", "the two passwords differ"));
    return {};
}

} // namespace

int runAddOperator(const QStringList& arguments)
{
    CliParser parser(QStringLiteral("add-operator"));
    const QCommandLineOption levelOption(
        QStringLiteral("level"),
        QCoreApplication::translate("AddOperator", "0 watches, 1 and above may command."),
        QStringLiteral("N"));
    parser.addOption(levelOption);
    if (!parser.read(arguments))
        return ExitUsage;
    bool ok = false;
    const int level = parser.value(levelOption).toInt(&ok);
    if (!ok) {
        parser.tellUsage(QCoreApplication::translate("AddOperator", "a level is needed"));
        return ExitUsage;
    }

    const std::optional<SecretText> password = askPassword();
    if (!password)
        return ExitUsage;
    const QString path = DeskConfig::defaultPath();
    const QString name = parser.positionalArguments().first();
    const QString refusal = addOperator(path, name, level, *password);
    if (!refusal.isEmpty()) {
        printError(refusal);
        return ExitRefused;
    }
    printOut(QCoreApplication::translate("AddOperator", "%1 may log in at level %2 (%3)")
                 .arg(name)
                 .arg(level)
                 .arg(path));
    return ExitOk;
}

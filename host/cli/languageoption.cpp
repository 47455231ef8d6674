#include "cli/languageoption.h"

#include "window/language.h"

#include <QCoreApplication>

LanguageOption::LanguageOption()
    : QCommandLineOption(QStringLiteral("language"),
                         QStringLiteral("Language of the pages: en, de, fr, es or zh_CN."),
                         QStringLiteral("CODE"))
{}

std::optional<LanguageChoice> LanguageOption::choice(const CliParser& parser) const
{
    const LanguageChoice choice = language::choiceOf(parser.value(*this));
    if (!parser.isSet(*this) || choice != LanguageChoice::System)
        return choice;
    parser.tellUsage(
        QCoreApplication::translate("Cli", "there is no language \"%1\"").arg(parser.value(*this)));
    return {};
}

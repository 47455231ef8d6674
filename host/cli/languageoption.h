#ifndef LANGUAGEOPTION_H
#define LANGUAGEOPTION_H

// --language CODE, for the window and its pictures.
// May touch: the languages of the window.

#include "cli/cliparser.h"
#include "config/desksettings.h"

#include <optional>

class LanguageOption : public QCommandLineOption
{
public:
    LanguageOption();

    // What was chosen, System where nothing was. Nothing after telling that there is no such
    // language.
    std::optional<LanguageChoice> choice(const CliParser& parser) const;
};

#endif // LANGUAGEOPTION_H

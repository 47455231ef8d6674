#ifndef LANGUAGE_H
#define LANGUAGE_H

// The language of the window: which there are, and which one is spoken.
// May touch: Qt's translators, the desk's settings, the catalogues among the resources.

#include "config/desksettings.h"

#include <QString>

namespace language {

// As a locale: "de", "zh_CN". Of System: the first of the desktop's languages that the desk
// speaks, else "en".
QString codeOf(LanguageChoice choice);

// The choice of a code; System for one that the desk does not speak.
LanguageChoice choiceOf(const QString& code);

// The name of a language in itself; null for System.
const char* nameOf(LanguageChoice choice);

// From here on tr() answers in that language, for the desk, the views and Qt's own dialogs. Texts
// that have been asked for before stay as they are. A catalogue that is missing leaves the English.
void apply(LanguageChoice choice);

} // namespace language

#endif // LANGUAGE_H

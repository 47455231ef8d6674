#ifndef CONFIGKEYS_H
#define CONFIGKEYS_H

// The keys of the configuration file: where each stands, what it may hold, what it is called. One
// row serves reading, writing, checking and the dialogs; a new key is a new row (and, for the
// desk, a field of DeskSettings).
// May touch: Qt Core, the settings as plain values.

#include "config/desksettings.h"
#include "config/operatoraccount.h"
#include "connectors/devicesettings.h"

#include <QVariant>

#include <optional>
#include <vector>

struct ConfigWord {
    const char* word;  // as the file writes it
    const char* label; // as people read it, to be translated
};

// What a value may be. As a QVariant it is an int (Number), a bool (Switch), the index of a word
// (Choice) or a QString (Text).
struct ConfigType {
    enum class Kind { Number, Switch, Choice, Text };

    Kind kind = Kind::Text;
    int minimum = 0;       // Number
    int maximum = 0;       // Number; Text: most characters
    const char* unit = ""; // Number
    std::vector<ConfigWord> words;
    const char* pattern = ""; // Text; a regular expression that all of it has to fit
    const char* meaning = ""; // of the pattern, to be translated
    bool isPrivate = false;   // may hold a secret: never shown but where it is edited

    static ConfigType number(int minimum, int maximum, const char* unit = "");
    static ConfigType yesNo();
    static ConfigType choice(const std::vector<ConfigWord>& words);
    static ConfigType text(int longest);
    static ConfigType matching(const char* pattern, int longest, const char* meaning);
    ConfigType hidden() const; // the same, private

    // Nothing where the text is no such value.
    std::optional<QVariant> parse(const QString& text) const;
    QString format(const QVariant& value) const; // parse() takes it back
    QString description() const;                 // "a whole number from 1 to 3600 s"
};

template <typename T>
struct ConfigKey {
    const char* section; // of the desk; empty: the object's own section
    const char* name;
    const char* label; // for dialogs, to be translated in the context ConfigKeys
    ConfigType type;
    QVariant (*get)(const T& object);
    void (*set)(T& object, const QVariant& value);
};

// In the order of the dialogs.
const std::vector<ConfigKey<DeskSettings>>& deskKeys();
const std::vector<ConfigKey<DeviceSettings>>& deviceKeys(); // without address and factors
const std::vector<ConfigKey<OperatorAccount>>& operatorKeys();

// By the name of the key, which must be one of deviceKeys().
const ConfigType& deviceKeyType(const QString& name);

QString configLabel(const char* label);
bool hasControlCharacters(const QString& text);

#endif // CONFIGKEYS_H

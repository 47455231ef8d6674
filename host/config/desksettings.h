#ifndef DESKSETTINGS_H
#define DESKSETTINGS_H

// The settings of the desk itself, as plain values.
// May touch: thresholds.

#include "reading/thresholds.h"

// Each in the order of its words in configkeys.cpp.
enum class SecretsChoice { Keychain, File };
enum class ThemeChoice { Light, Dark, System };

struct DeskSettings {
    int pollInterval = 5; // s
    int idleLogout = 10;  // min
    Thresholds thresholds;
    ThemeChoice theme = ThemeChoice::Light;
    SecretsChoice secrets = SecretsChoice::Keychain;
};

#endif // DESKSETTINGS_H

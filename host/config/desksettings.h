#ifndef DESKSETTINGS_H
#define DESKSETTINGS_H

// The settings of the desk itself, as plain values.
// May touch: thresholds.

#include "reading/thresholds.h"

enum class SecretsChoice { Keychain, File };

struct DeskSettings {
    int pollInterval = 5; // s
    int idleLogout = 10;  // min
    Thresholds thresholds;
    SecretsChoice secrets = SecretsChoice::Keychain;
};

#endif // DESKSETTINGS_H

#ifndef DESKSETTINGS_H
#define DESKSETTINGS_H

// The settings of the desk itself, as plain values.
// May touch: thresholds, other settings.

#include "config/notifysettings.h"
#include "reading/thresholds.h"

#include <QString>

// Each in the order of its words in configkeys.cpp.
enum class SecretsChoice { Keychain, File };
enum class ThemeChoice { Light, Dark, System };
enum class LanguageChoice { System, English, German, French, Spanish, Chinese };
enum class MotionChoice { System, Full, Reduced };

enum class HistoryMode { Desk, Viewer };

enum class HistoryTls {
    Required,  // always encrypted, the server's certificate checked
    Preferred, // as required where a password leaves this machine, else where the server can
    Off        // in clear, the password too
};

struct HistorySettings {
    QString store; // sqlite:PATH or postgresql://USER@HOST[:PORT]/DATABASE; empty: the user's file
    HistoryMode mode = HistoryMode::Desk;
    HistoryTls tls = HistoryTls::Preferred;
    QString certificateAuthority; // file; empty: the system's
    int keepSamples = 1;          // days of full samples, 1..366
    int keepMinutes = 30;         // days of one-minute means, 1..3660
    int keepQuarters = 1095;      // days of 15-minute means and of the journal, 1..36600
};

struct DeskSettings {
    int pollInterval = 5; // s
    int idleLogout = 10;  // min
    Thresholds thresholds;
    ThemeChoice theme = ThemeChoice::Light;
    LanguageChoice language = LanguageChoice::System;
    MotionChoice motion = MotionChoice::System;
    SecretsChoice secrets = SecretsChoice::Keychain;
    HistorySettings history;
    NotifySettings notify;
    QString site;    // of the collector: its devices in a shared store; empty: without a name
    QString metrics; // where metrics are served, "127.0.0.1:9199" or a port; empty: nowhere
};

#endif // DESKSETTINGS_H

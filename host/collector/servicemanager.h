#ifndef SERVICEMANAGER_H
#define SERVICEMANAGER_H

// What the system's service manager and its journal are told. Without one all of it goes to the
// standard error, or nowhere.
// May touch: the service manager's library, the standard error.

#include <QString>

enum class LogLevel { Error, Warning, Info };

// One line; in the system's journal with its level.
void logLine(LogLevel level, const QString& text);

// status: for people, what the service does now.
void tellReady(const QString& status);
void tellStatus(const QString& status);
void tellReloading();
void tellStopping();
// Call it once: as long as the event loop turns, the manager is told so as often as it wants.
void startWatchdog();

#endif // SERVICEMANAGER_H

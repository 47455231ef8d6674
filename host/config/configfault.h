#ifndef CONFIGFAULT_H
#define CONFIGFAULT_H

// One thing that is wrong in the configuration file.
// May touch: Qt Core.

#include <QString>
#include <QVector>

enum class ConfigSeverity {
    Warning, // ignored and kept: an unknown key, a file that others may read
    Error    // left out or replaced by its default; the file is not written while there is one
};

struct ConfigFault {
    int line = 0; // from 1; 0: the file as a whole
    ConfigSeverity severity = ConfigSeverity::Error;
    QString text; // reason and what is used instead; never quotes a value that may be secret
};

using ConfigFaults = QVector<ConfigFault>;

inline bool hasErrors(const ConfigFaults& faults)
{
    for (const ConfigFault& fault : faults)
        if (fault.severity == ConfigSeverity::Error)
            return true;
    return false;
}

#endif // CONFIGFAULT_H

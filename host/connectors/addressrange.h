#ifndef ADDRESSRANGE_H
#define ADDRESSRANGE_H

// A range of IPv4 addresses as an operator types it.
// May touch: Qt Core. Pure text; nothing is asked.

#include <QString>
#include <QStringList>

struct AddressRange {
    static constexpr int kMostHosts = 1024;

    QStringList hosts; // ascending; none where there is an error
    QString error;     // what is wrong and how it should look; plain text

    //  10.0.0.0/24 (without the addresses of network and broadcast)   10.0.0.5-10.0.0.60
    //  10.0.0.5-60   10.0.0.5
    static AddressRange parse(const QString& text);
};

#endif // ADDRESSRANGE_H

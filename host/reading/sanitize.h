#ifndef SANITIZE_H
#define SANITIZE_H

// Texts and numbers as devices give them, made safe to keep and to show.
// May touch: Qt Core and the standard library.

#include "reading/upsreading.h"

#include <QByteArray>

// Longest text kept of a device; the UPS-MIB allows 63 octets, NUT texts run longer.
constexpr int kMaxDeviceText = 255;

// UTF-8, Latin-1 where it is not UTF-8; control characters dropped (white space becomes a blank),
// ends trimmed, at most kMaxDeviceText characters.
QString cleanDeviceText(const QByteArray& raw);
QString cleanDeviceText(const QString& raw);

// Empty for what devices use to say "not known": -1, 65535, 655350, 4294967295, -273, and anything
// that is no finite number.
Value plausible(double raw);

// Decimal text with a dot, leading zeros and blanks around it allowed; in no locale but C.
// Empty when it is no number or not plausible.
Value plausibleNumber(const QByteArray& text);

#endif // SANITIZE_H

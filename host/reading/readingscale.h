#ifndef READINGSCALE_H
#define READINGSCALE_H

// Correction of devices that are wrong by a factor, by the name of the quantity.
// May touch: Qt Core and readings.
//
//  input. bypass.   voltage current frequency power           all lines
//  output.          voltage current frequency power load      all lines
//  battery.         voltage current temperature runtime charge
//  rated.           voltage frequency                         input and output
//                   power apparent-power

#include "reading/upsreading.h"

#include <QMap>

// In the order above.
QStringList scaleNames();

// A factor is finite and above 0.
bool isScaleFactor(double factor);

// Multiplies what is known; what is not known stays so, and what is no finite number after it
// becomes so. Names and factors that are not valid are passed over.
void applyScales(UpsReading& reading, const QMap<QString, double>& scales);

#endif // READINGSCALE_H

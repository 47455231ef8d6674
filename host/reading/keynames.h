#ifndef KEYNAMES_H
#define KEYNAMES_H

// Data keys by the names of the shared header, for people and scripts.
// May touch: the library's data keys.

#include <QString>

// "realdata_InputVoltage_A" for 9; empty for a number that is no data key.
QString keyName(int key);

#endif // KEYNAMES_H

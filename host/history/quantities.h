#ifndef QUANTITIES_H
#define QUANTITIES_H

// The fixed list of numbers that the history keeps of a reading.
// May touch: readings.

#include "reading/upsreading.h"

#include <QString>

#include <vector>

// A quantity's index is part of what is stored: new ones are appended, none is ever moved.
struct Quantity {
    QString name; // "battery.charge", "input.voltage.2": the last part is the line, 1 to 3
    QString unit; // "V", "A", "Hz", "W", "VA", "%", "s", "°C", or empty for a count

    // Where it stands in a reading: a value of its own, or a line of a group.
    Value UpsReading::*value = nullptr;
    LineReading UpsReading::*group = nullptr;
    PhaseValues LineReading::*lines = nullptr;
    std::size_t line = 0;
};

const std::vector<Quantity>& quantities();
// Index of the quantity of that name; -1: there is none.
int quantityIndex(const QString& name);
// "input.voltage.2 (V)": for column heads.
QString quantityTitle(const Quantity& quantity);

Value quantityOf(const UpsReading& reading, const Quantity& quantity);
void setQuantity(UpsReading& reading, const Quantity& quantity, Value value);

#endif // QUANTITIES_H

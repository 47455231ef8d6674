#ifndef THRESHOLDS_H
#define THRESHOLDS_H

// From where on a value of a live device counts as conspicuous, alarm or not.
// May touch: nothing.

struct Thresholds {
    int chargeLow = 50;       // %, 1..100: a warning at or below
    int chargeCritical = 20;  // %, 0..100, at most chargeLow: critical at or below
    int runtimeLow = 5;       // min, 0..1440: critical at or below, while on battery
    int loadHigh = 80;        // %, 1..200: a warning at or above
    int temperatureHigh = 40; // degrees Celsius of the battery, 1..150: a warning at or above
};

#endif // THRESHOLDS_H

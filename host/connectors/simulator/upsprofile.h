#ifndef UPSPROFILE_H
#define UPSPROFILE_H

// What stands on the plate of a simulated UPS.
// May touch: nothing.

// A full battery carries the usual load for about 25 minutes. The chargers are strong, so that a
// recharge takes as long; voltage, current, power and time still agree with each other.
struct UpsProfile {
    const char* model;
    const char* name;
    int lines;                 // 1 or 3, the same at input, output and bypass
    double ratedApparentPower; // VA, all lines together
    double ratedPower;         // W, all lines together
    double idlePower;          // W the unit takes for itself
    int cells;                 // of 2 V in the battery string
    double resistance;         // ohm, of the battery string
    double capacity;           // J in the full battery
    double chargerPower;       // W at the battery's terminals
};

// 3 kVA with a string of 72 V; 30 kVA with 384 V.
inline constexpr UpsProfile kSinglePhaseUps{
    "SIM-3000 online, 3 kVA", "Simulated UPS", 1, 3000, 2700, 40, 36, 0.10, 2e6, 2000};
inline constexpr UpsProfile kThreePhaseUps{"SIM-30K online, 30 kVA",
                                           "Simulated three-phase UPS",
                                           3,
                                           30000,
                                           27000,
                                           400,
                                           192,
                                           0.28,
                                           2e7,
                                           20000};

#endif // UPSPROFILE_H

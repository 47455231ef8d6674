#ifndef UPSMIB_H
#define UPSMIB_H

// Object identifiers of the UPS-MIB (RFC 1628) and of the system group, by number: no MIB file is
// needed. Nothing else of an agent is read.
// May touch: Qt Core and the standard library.

#include "connectors/snmp/snmpvalue.h"

namespace UpsMib {

inline const SnmpOid objects{1, 3, 6, 1, 2, 1, 33, 1}; // upsObjects
inline const SnmpOid wellKnownAlarms = objects + SnmpOid{6, 3};
inline const SnmpOid wellKnownTests = objects + SnmpOid{7, 7};
constexpr quint32 kLastWellKnownAlarm = 24;

inline SnmpOid scalar(quint32 group, quint32 object)
{
    return objects + SnmpOid{group, object, 0};
}

inline const SnmpOid sysUpTime{1, 3, 6, 1, 2, 1, 1, 3, 0};
inline const SnmpOid sysName{1, 3, 6, 1, 2, 1, 1, 5, 0};
inline const SnmpOid sysLocation{1, 3, 6, 1, 2, 1, 1, 6, 0};

inline const SnmpOid batteryStatus = scalar(2, 1);
inline const SnmpOid secondsOnBattery = scalar(2, 2);
inline const SnmpOid outputSource = scalar(4, 1);
inline const SnmpOid alarmsPresent = scalar(6, 1);
inline const SnmpOid alarmDescr = objects + SnmpOid{6, 2, 1, 2}; // a column
inline const SnmpOid alarmTime = objects + SnmpOid{6, 2, 1, 3};  // a column
inline const SnmpOid testId = scalar(7, 1);
inline const SnmpOid testSpinLock = scalar(7, 2);
inline const SnmpOid testResultsSummary = scalar(7, 3);
inline const SnmpOid testResultsDetail = scalar(7, 4);
inline const SnmpOid testStartTime = scalar(7, 5);
inline const SnmpOid shutdownType = scalar(8, 1);
inline const SnmpOid shutdownAfterDelay = scalar(8, 2);
inline const SnmpOid startupAfterDelay = scalar(8, 3);
inline const SnmpOid rebootWithDuration = scalar(8, 4);
inline const SnmpOid audibleStatus = scalar(9, 8);

enum BatteryStatus { BatteryNormal = 2, BatteryLow = 3, BatteryDepleted = 4 };
enum TestResult { DonePass = 1, DoneWarning, DoneError, Aborted, InProgress, NoTestsInitiated };
enum WellKnownTest { AbortTest = 2, QuickBatteryTest = 4, DeepBatteryCalibration = 5 };
enum ShutdownType { ShutdownOutput = 1, ShutdownSystem = 2 };

} // namespace UpsMib

#endif // UPSMIB_H

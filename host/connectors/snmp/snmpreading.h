#ifndef SNMPREADING_H
#define SNMPREADING_H

// What an agent answered, as a reading: pure functions over values, without a socket.
// May touch: readings, values and the UPS-MIB.

#include "connectors/snmp/snmpvalue.h"

#include "reading/upsreading.h"

// The scalar objects that a poll asks for, the two that tell the power path first.
const std::vector<SnmpOid>& polledScalars();
// The table columns that a poll walks: all lines of input, output and bypass, and the alarms.
const std::vector<SnmpOid>& polledColumns();

// True when at least one object of the UPS-MIB has a value.
bool hasUpsObjects(const SnmpValues& values);

// In physical units, by the scale of RFC 1628; an agent that is wrong by ten stays wrong here.
// Any map is fine: what is missing, of a wrong type or marked "not known" is left out.
UpsReading readingFromSnmp(const SnmpValues& values);

#endif // SNMPREADING_H

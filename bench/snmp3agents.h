#ifndef SNMP3AGENTS_H
#define SNMP3AGENTS_H

// The far side of the fleet benchmark for version 3: a few agents of Debian's, each an engine of
// its own, with the objects of a three-phase UPS.
// May touch: the tests' agent and table.

#include "support/snmpd.h"

#include <memory>
#include <vector>

class Snmp3Agents
{
public:
    // False where one does not come up.
    bool start();
    QString address(int number) const;

private:
    std::vector<std::unique_ptr<Snmpd>> m_agents;
};

#endif // SNMP3AGENTS_H

#ifndef SNMPDIALOGUE_H
#define SNMPDIALOGUE_H

// A conversation with one agent as questions and answers, apart from sockets, clocks and threads:
// a poll and each command are one.
// May touch: values and Qt Core.

#include "connectors/snmp/snmpvalue.h"

#include <chrono>

struct SnmpVariable {
    SnmpOid oid;
    SnmpValue value;
};

struct SnmpRequest {
    enum class Kind { Get, GetNext, GetBulk, Set };

    Kind kind = Kind::Get;
    std::vector<SnmpVariable> variables;     // the values matter to Set only
    int repetitions = 0;                     // GetBulk: rows of each variable
    int retries = 0;                         // further tries after a silence
    std::chrono::milliseconds timeout{5000}; // of each try
    std::chrono::milliseconds delay{0};      // to wait before sending
};

struct SnmpReply {
    enum class Kind {
        Answer,
        Silence, // no answer in time, all tries included
        Refusal  // the agent, or our own settings, say why there can be no answer
    };

    Kind kind = Kind::Silence;
    int errorStatus = 0; // of the protocol; 0: no error
    int errorIndex = 0;  // from 1; 0: of no variable in particular
    std::vector<SnmpVariable> variables;
    std::chrono::milliseconds elapsed{0};
    QString message; // Refusal, and Silence where more is known: the cause, for the operator
};

// Error states of the protocol that are treated specially.
enum SnmpErrorStatus {
    SnmpNoError = 0,
    SnmpTooBig = 1,
    SnmpNoSuchName = 2,
    SnmpBadValue = 3,
    SnmpReadOnly = 4,
    SnmpGenErr = 5,
    SnmpNoAccess = 6,
    SnmpWrongType = 7,
    SnmpWrongValue = 10,
    SnmpNoCreation = 11,
    SnmpInconsistentValue = 12,
    SnmpResourceUnavailable = 13,
    SnmpCommitFailed = 14,
    SnmpUndoFailed = 15,
    SnmpAuthorizationError = 16,
    SnmpNotWritable = 17
};

class SnmpDialogue
{
public:
    virtual ~SnmpDialogue() = default;

    // The next question; empty when all is said. Each one is followed by one take().
    virtual std::optional<SnmpRequest> next() = 0;
    virtual void take(const SnmpReply& reply) = 0;
};

#endif // SNMPDIALOGUE_H

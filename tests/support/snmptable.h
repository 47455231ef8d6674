#ifndef SNMPTABLE_H
#define SNMPTABLE_H

// An SNMP agent without a network: a table of objects, and the habits of weak agents.
// May touch: the values and dialogues of the SNMP connector.

#include "connectors/snmp/snmpdialogue.h"

#include <functional>
#include <set>

class SnmpTable
{
public:
    // Lines "OID TYPE VALUE" as tests/data/snmp/three-phase.txt explains them.
    void load(const QByteArray& text);
    void loadFile(const QString& path);
    void set(const char* oid, const SnmpValue& value);
    void removeBelow(const char* oid);
    static SnmpOid oid(const char* text); // below upsObjects unless it begins with "1.3.6."

    // Empty: silence.
    std::optional<SnmpReply> answer(const SnmpRequest& request, int version);

    SnmpValues objects;

    // Habits
    int silentAbove = 1000;  // objects of one request that get no answer at all
    int tooBigAbove = 1000;  // objects of one request that get "tooBig"
    int answersFirst = 1000; // objects of one request that are answered, the rest is left out
    bool bulkSilent = false;
    bool silent = false;
    std::set<SnmpOid> circular; // GETNEXT from here repeats the same object
    std::set<SnmpOid> failing;  // genErr
    std::set<SnmpOid> refusing; // SET of it is a genErr
    int setError = 0;           // of every SET
    int setErrorIndex = 1;
    bool setSaysNoInstance = false;
    bool setSilent = false;  // but carried out
    int refusesAfter = 1000; // SETs, from when on the user is turned away
    std::function<void(const SnmpVariable&)> onSet;

    // What was asked, for tests that count.
    int requests = 0;
    int sets = 0;
    int largest = 0; // objects in one request

private:
    SnmpReply get(const SnmpRequest& request, int version) const;
    SnmpReply walk(const SnmpRequest& request, int version) const;
    SnmpReply write(const SnmpRequest& request);
};

// Holds the dialogue with the table until it has ended; returns the time it would have waited.
std::chrono::milliseconds hold(SnmpDialogue& dialogue, SnmpTable& table, int version = 2);

#endif // SNMPTABLE_H

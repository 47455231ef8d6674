#ifndef SNMPUSERS_H
#define SNMPUSERS_H

// The users of SNMPv3 and the keys of their secrets, for all agents.
// May touch: net-snmp's table of users, values. Used on the engine's thread only.

#include "connectors/devicesettings.h"

#include <QCoreApplication>
#include <QHash>

struct snmp_session;

class SnmpUsers
{
    Q_DECLARE_TR_FUNCTIONS(SnmpUsers)

public:
    // Fills in level, protocols and keys of a session that is to be opened; returns why it cannot,
    // for the operator, or nothing.
    QString addSecurity(snmp_session& session, const DeviceSettings& settings);

    // Before anything is sent or read: the library keeps one table of users for all sessions, by
    // engine and name. Agents with the same engine (copies of one image) may have different
    // secrets: the one that speaks owns the entry. The session's engine must be known.
    void claim(snmp_session& session, const DeviceSettings& settings);

    // The one in whose name agents are asked for their engine. False: out of memory.
    static bool addNobody();

private:
    QString addAuthentication(snmp_session& session, const DeviceSettings& settings);
    QString addPrivacy(snmp_session& session, const DeviceSettings& settings);
    bool makeKey(const snmp_session& session, const QString& secret, unsigned char* key,
                 std::size_t* length);

    QHash<QByteArray, QByteArray> m_keys;   // by protocol and secret, as a fingerprint
    QHash<QByteArray, QByteArray> m_owners; // engine and user to a fingerprint of the account
};

#endif // SNMPUSERS_H

#include "connectors/snmp/snmpusers.h"

#include <net-snmp/net-snmp-config.h>

#include <net-snmp/net-snmp-includes.h>

#include <QCryptographicHash>

namespace {

QByteArray fingerprint(const QByteArrayList& parts)
{
    return QCryptographicHash::hash(parts.join('\0'), QCryptographicHash::Sha256);
}

bool isTooShort(const QString& secret)
{
    return secret.toUtf8().size() < USM_LENGTH_P_MIN;
}

} // namespace

QString SnmpUsers::addSecurity(netsnmp_session& session, const DeviceSettings& settings)
{
    const QString& level = settings.address.securityLevel;
    const bool priv = level == QLatin1String("authPriv");
    const bool auth = priv || level == QLatin1String("authNoPriv");
    session.securityModel = SNMP_SEC_MODEL_USM;
    session.securityLevel = priv   ? SNMP_SEC_LEVEL_AUTHPRIV
                            : auth ? SNMP_SEC_LEVEL_AUTHNOPRIV
                                   : SNMP_SEC_LEVEL_NOAUTH;
    if (!auth)
        return {};
    if (isTooShort(settings.authSecret) || (priv && isTooShort(settings.privSecret)))
        return tr("SNMPv3 secrets have at least %1 characters; the %2 secret is shorter or "
                  "missing.")
            .arg(USM_LENGTH_P_MIN)
            .arg(isTooShort(settings.authSecret) ? tr("authentication") : tr("privacy"));
    const QString error = addAuthentication(session, settings);
    return error.isEmpty() && priv ? addPrivacy(session, settings) : error;
}

QString SnmpUsers::addAuthentication(netsnmp_session& session, const DeviceSettings& settings)
{
    const QString& name = settings.address.authProtocol;
    const int type = usm_lookup_auth_type(name.toLatin1().constData());
    oid* protocol = type < 0 ? nullptr : sc_get_auth_oid(type, &session.securityAuthProtoLen);
    if (!protocol || type == NETSNMP_USMAUTH_NOAUTH)
        return tr("The SNMP library of this computer has no authentication with \"%1\".").arg(name);
    session.securityAuthProto = protocol;
    session.securityAuthKeyLen = sizeof(session.securityAuthKey);
    return makeKey(session, settings.authSecret, session.securityAuthKey,
                   &session.securityAuthKeyLen)
               ? QString()
               : tr("The SNMP library cannot make keys of these secrets.");
}

QString SnmpUsers::addPrivacy(netsnmp_session& session, const DeviceSettings& settings)
{
    const QString& name = settings.address.privProtocol;
    const int type = usm_lookup_priv_type(name.toLatin1().constData());
    oid* protocol = type < 0 ? nullptr : sc_get_priv_oid(type, &session.securityPrivProtoLen);
    if (!protocol || type == USM_CREATE_USER_PRIV_NONE)
        return tr("The SNMP library of this computer has no privacy with \"%1\".").arg(name);
    session.securityPrivProto = protocol;
    session.securityPrivKeyLen = sizeof(session.securityPrivKey);
    return makeKey(session, settings.privSecret, session.securityPrivKey,
                   &session.securityPrivKeyLen)
               ? QString()
               : tr("The SNMP library cannot make keys of these secrets.");
}

// The key of a secret takes a megabyte of hashing: done once for all agents that share it.
bool SnmpUsers::makeKey(const netsnmp_session& session, const QString& secret, u_char* key,
                        std::size_t* length)
{
    const QByteArray bytes = secret.toUtf8();
    const oid* protocol = session.securityAuthProto;
    const std::size_t protocolLength = session.securityAuthProtoLen;
    const QByteArray print = fingerprint(
        {QByteArray(reinterpret_cast<const char*>(protocol), int(protocolLength * sizeof(oid))),
         bytes});
    auto entry = m_keys.find(print);
    if (entry == m_keys.end()) {
        u_char made[USM_AUTH_KU_LEN];
        std::size_t size = sizeof(made);
        if (generate_Ku(protocol, static_cast<u_int>(protocolLength),
                        reinterpret_cast<const u_char*>(bytes.constData()),
                        static_cast<std::size_t>(bytes.size()), made, &size) != SNMPERR_SUCCESS)
            return false;
        entry = m_keys.insert(print, QByteArray(reinterpret_cast<const char*>(made), int(size)));
    }
    memcpy(key, entry->constData(), static_cast<std::size_t>(entry->size()));
    *length = static_cast<std::size_t>(entry->size());
    return true;
}

void SnmpUsers::claim(netsnmp_session& session, const DeviceSettings& settings)
{
    const QByteArray engine(reinterpret_cast<const char*>(session.securityEngineID),
                            int(session.securityEngineIDLen));
    const DeviceAddress& address = settings.address;
    const QByteArray key = engine + '\0' + address.user.toUtf8();
    const QByteArray print =
        fingerprint({address.securityLevel.toUtf8(), address.authProtocol.toUtf8(),
                     settings.authSecret.toUtf8(), address.privProtocol.toUtf8(),
                     settings.privSecret.toUtf8()});
    usmUser* present =
        usm_get_user(session.securityEngineID, session.securityEngineIDLen, session.securityName);
    if (present && m_owners.value(key) == print)
        return;
    if (present) {
        usm_remove_user(present);
        usm_free_user(present);
    }
    session.flags &= ~static_cast<u_long>(SNMP_FLAGS_USER_CREATED);
    create_user_from_session(&session);
    m_owners.insert(key, print);
}

bool SnmpUsers::addNobody()
{
    if (usm_get_user(nullptr, 0, ""))
        return true;
    usmUser* nobody = usm_create_user();
    if (!nobody)
        return false;
    nobody->name = strdup("");
    nobody->secName = strdup("");
    usm_add_user(nobody);
    return true;
}

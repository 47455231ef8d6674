#include "connectors/snmp/snmpsession.h"

#include <net-snmp/net-snmp-config.h>

#include <net-snmp/net-snmp-includes.h>

#include <net-snmp/library/large_fd_set.h>
#include <net-snmp/library/lcd_time.h>

#include <QCryptographicHash>
#include <QHash>

#include <poll.h>

using std::chrono::milliseconds;

namespace {

SnmpValue toValue(const netsnmp_variable_list& variable)
{
    switch (variable.type) {
    case ASN_INTEGER:
    case ASN_COUNTER:
    case ASN_GAUGE:
    case ASN_TIMETICKS:
    case ASN_UINTEGER:
        return variable.val.integer ? SnmpValue::number(*variable.val.integer) : SnmpValue::null();
    case ASN_COUNTER64:
        if (!variable.val.counter64)
            return SnmpValue::null();
        return SnmpValue::number(static_cast<qint64>((quint64(variable.val.counter64->high) << 32) |
                                                     quint32(variable.val.counter64->low)));
    case ASN_OBJECT_ID:
        return SnmpValue::objectId(
            SnmpOid(variable.val.objid, variable.val.objid + variable.val_len / sizeof(oid)));
    case ASN_NULL:
        return SnmpValue::null();
    case SNMP_NOSUCHOBJECT:
    case SNMP_NOSUCHINSTANCE:
    case SNMP_ENDOFMIBVIEW:
        return SnmpValue::absent();
    case ASN_OPAQUE_FLOAT:
        return SnmpValue::text(QByteArray::number(double(*variable.val.floatVal)));
    case ASN_OPAQUE_DOUBLE:
        return SnmpValue::text(QByteArray::number(*variable.val.doubleVal));
    default:
        return SnmpValue::text(QByteArray(reinterpret_cast<const char*>(variable.val.string),
                                          static_cast<int>(variable.val_len)));
    }
}

SnmpReply toReply(const netsnmp_pdu& pdu)
{
    SnmpReply reply;
    reply.kind = SnmpReply::Kind::Answer;
    reply.errorStatus = static_cast<int>(pdu.errstat);
    reply.errorIndex = static_cast<int>(pdu.errindex);
    for (const netsnmp_variable_list* v = pdu.variables; v; v = v->next_variable)
        reply.variables.push_back({SnmpOid(v->name, v->name + v->name_length), toValue(*v)});
    return reply;
}

void addVariable(netsnmp_pdu* pdu, const SnmpVariable& variable, bool withValue)
{
    const std::vector<oid> name(variable.oid.begin(), variable.oid.end());
    const SnmpValue& value = variable.value;
    if (withValue && value.type == SnmpValue::Type::ObjectId) {
        const std::vector<oid> id(value.oid.begin(), value.oid.end());
        snmp_pdu_add_variable(pdu, name.data(), name.size(), ASN_OBJECT_ID, id.data(),
                              id.size() * sizeof(oid));
    } else if (withValue) {
        const long number = static_cast<long>(value.integer);
        snmp_pdu_add_variable(pdu, name.data(), name.size(), ASN_INTEGER, &number, sizeof(number));
    } else {
        snmp_add_null_var(pdu, name.data(), name.size());
    }
}

QByteArray fingerprint(const QByteArrayList& parts)
{
    return QCryptographicHash::hash(parts.join('\0'), QCryptographicHash::Sha256);
}

// The key of a secret takes a megabyte of hashing: done once for all agents that share it.
bool makeKey(const oid* protocol, size_t protocolLength, const QString& secret, u_char* key,
             size_t* length)
{
    static QHash<QByteArray, QByteArray> known;
    const QByteArray bytes = secret.toUtf8();
    const QByteArray print = fingerprint(
        {QByteArray(reinterpret_cast<const char*>(protocol), int(protocolLength * sizeof(oid))),
         bytes});
    auto entry = known.find(print);
    if (entry == known.end()) {
        u_char made[USM_AUTH_KU_LEN];
        size_t size = sizeof(made);
        if (generate_Ku(protocol, static_cast<u_int>(protocolLength),
                        reinterpret_cast<const u_char*>(bytes.constData()),
                        static_cast<size_t>(bytes.size()), made, &size) != SNMPERR_SUCCESS)
            return false;
        entry = known.insert(print, QByteArray(reinterpret_cast<const char*>(made), int(size)));
    }
    memcpy(key, entry->constData(), static_cast<size_t>(entry->size()));
    *length = static_cast<size_t>(entry->size());
    return true;
}

constexpr int kLibraryVersions[] = {SNMP_VERSION_1, SNMP_VERSION_2c, SNMP_VERSION_3};

} // namespace

SnmpSession::SnmpSession(const DeviceSettings& settings, Handler handler)
    : m_settings(settings)
    , m_handler(std::move(handler))
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { onTimer(); });
}

SnmpSession::~SnmpSession()
{
    m_notifier.reset(); // at once: the thread may be about to end
    close();
}

void SnmpSession::setPeer(const QString& numericAddress, quint16 port)
{
    const bool v6 = numericAddress.contains(QLatin1Char(':'));
    m_peer = (v6 ? QStringLiteral("udp6:[%1]:%2") : QStringLiteral("udp:%1:%2"))
                 .arg(numericAddress)
                 .arg(port)
                 .toLatin1();
}

void SnmpSession::close()
{
    m_timer.stop();
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater(); // this may be its own call
    }
    if (m_session)
        snmp_sess_close(m_session);
    m_session = nullptr;
    m_pending = false;
    m_reply.reset();
}

bool SnmpSession::open()
{
    netsnmp_session wanted;
    snmp_sess_init(&wanted);
    const DeviceAddress& address = m_settings.address;
    const int version = qBound(1, address.snmpVersion, 3);
    QByteArray community =
        (address.community.isEmpty() ? QStringLiteral("public") : address.community).toUtf8();
    QByteArray user = address.user.toUtf8();
    QByteArray context = address.context.toUtf8();

    wanted.version = kLibraryVersions[version - 1];
    wanted.peername = m_peer.data();
    if (version == 3) {
        wanted.securityName = user.data();
        wanted.securityNameLen = static_cast<size_t>(user.size());
        wanted.contextName = context.data();
        wanted.contextNameLen = static_cast<size_t>(context.size());
        QString error;
        if (!addSecurity(wanted, error)) {
            fail(SnmpReply::Kind::Refusal, error);
            return false;
        }
    } else {
        wanted.community = reinterpret_cast<u_char*>(community.data());
        wanted.community_len = static_cast<size_t>(community.size());
    }

    m_session = snmp_sess_open(&wanted);
    if (!m_session) {
        const QString cause = QString::fromLocal8Bit(snmp_api_errstring(wanted.s_snmp_errno));
        fail(SnmpReply::Kind::Silence,
             tr("No SNMP session to %1: %2").arg(m_settings.address.host, cause));
        return false;
    }
    // Asking for the engine is our own request: the library would wait for the answer.
    snmp_sess_session(m_session)->flags |= SNMP_FLAGS_DONT_PROBE;
    m_notifier = std::make_unique<QSocketNotifier>(snmp_sess_transport(m_session)->sock,
                                                   QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { readSocket(); });
    return true;
}

// Level, protocols and keys of version 3.
bool SnmpSession::addSecurity(netsnmp_session& session, QString& error)
{
    const DeviceAddress& address = m_settings.address;
    const bool priv = address.securityLevel == QLatin1String("authPriv");
    const bool auth = priv || address.securityLevel == QLatin1String("authNoPriv");
    session.securityModel = SNMP_SEC_MODEL_USM;
    session.securityLevel = priv   ? SNMP_SEC_LEVEL_AUTHPRIV
                            : auth ? SNMP_SEC_LEVEL_AUTHNOPRIV
                                   : SNMP_SEC_LEVEL_NOAUTH;
    if (!auth)
        return true;

    const int authType = usm_lookup_auth_type(address.authProtocol.toLatin1().constData());
    size_t authLength = 0;
    oid* authProtocol = authType < 0 ? nullptr : sc_get_auth_oid(authType, &authLength);
    if (!authProtocol || authType == NETSNMP_USMAUTH_NOAUTH) {
        error = tr("The SNMP library of this computer has no authentication with \"%1\".")
                    .arg(address.authProtocol);
        return false;
    }
    if (m_settings.authSecret.toUtf8().size() < USM_LENGTH_P_MIN ||
        (priv && m_settings.privSecret.toUtf8().size() < USM_LENGTH_P_MIN)) {
        error =
            tr("SNMPv3 secrets have at least %1 characters; the %2 secret is shorter or missing.")
                .arg(USM_LENGTH_P_MIN)
                .arg(m_settings.authSecret.toUtf8().size() < USM_LENGTH_P_MIN ? tr("authentication")
                                                                              : tr("privacy"));
        return false;
    }
    session.securityAuthProto = authProtocol;
    session.securityAuthProtoLen = authLength;
    session.securityAuthKeyLen = sizeof(session.securityAuthKey);
    bool made = makeKey(authProtocol, authLength, m_settings.authSecret, session.securityAuthKey,
                        &session.securityAuthKeyLen);
    if (priv) {
        const int privType = usm_lookup_priv_type(address.privProtocol.toLatin1().constData());
        size_t privLength = 0;
        oid* privProtocol = privType < 0 ? nullptr : sc_get_priv_oid(privType, &privLength);
        if (!privProtocol || privType == USM_CREATE_USER_PRIV_NONE) {
            error = tr("The SNMP library of this computer has no privacy with \"%1\".")
                        .arg(address.privProtocol);
            return false;
        }
        session.securityPrivProto = privProtocol;
        session.securityPrivProtoLen = privLength;
        session.securityPrivKeyLen = sizeof(session.securityPrivKey);
        made = makeKey(authProtocol, authLength, m_settings.privSecret, session.securityPrivKey,
                       &session.securityPrivKeyLen) &&
               made;
    }
    if (!made)
        error = tr("The SNMP library cannot make keys of these secrets.");
    return made;
}

bool SnmpSession::needsEngine() const
{
    return m_settings.address.snmpVersion == 3 &&
           snmp_sess_session(m_session)->securityEngineIDLen == 0;
}

// The library keeps one table of users for all sessions, by engine and name. Agents with the same
// engine (copies of one image) may have different secrets: the one that speaks owns the entry.
void SnmpSession::claimUser()
{
    static QHash<QByteArray, QByteArray> owners;
    if (m_settings.address.snmpVersion != 3 || !m_session || needsEngine())
        return;
    netsnmp_session* session = snmp_sess_session(m_session);
    const QByteArray engine(reinterpret_cast<const char*>(session->securityEngineID),
                            int(session->securityEngineIDLen));
    const DeviceAddress& address = m_settings.address;
    const QByteArray key = engine + '\0' + address.user.toUtf8();
    const QByteArray print =
        fingerprint({address.securityLevel.toUtf8(), address.authProtocol.toUtf8(),
                     m_settings.authSecret.toUtf8(), address.privProtocol.toUtf8(),
                     m_settings.privSecret.toUtf8()});
    usmUser* present = usm_get_user(session->securityEngineID, session->securityEngineIDLen,
                                    session->securityName);
    if (present && owners.value(key) == print)
        return;
    if (present) {
        usm_remove_user(present);
        usm_free_user(present);
    }
    session->flags &= ~static_cast<u_long>(SNMP_FLAGS_USER_CREATED);
    create_user_from_session(session);
    owners.insert(key, print);
}

netsnmp_pdu* SnmpSession::makePdu() const
{
    constexpr int kCommands[] = {SNMP_MSG_GET, SNMP_MSG_GETNEXT, SNMP_MSG_GETBULK, SNMP_MSG_SET};
    netsnmp_pdu* pdu = snmp_pdu_create(kCommands[static_cast<int>(m_request.kind)]);
    if (!pdu)
        return nullptr;
    if (m_request.kind == SnmpRequest::Kind::GetBulk) {
        pdu->non_repeaters = 0;
        pdu->max_repetitions = m_request.repetitions;
    }
    for (const SnmpVariable& variable : m_request.variables)
        addVariable(pdu, variable, m_request.kind == SnmpRequest::Kind::Set);
    return pdu;
}

// An empty question in nobody's name, which every agent answers with a report of its engine.
netsnmp_pdu* SnmpSession::makeEngineProbe() const
{
    if (!usm_get_user(nullptr, 0, "")) {
        usmUser* nobody = usm_create_user();
        if (!nobody)
            return nullptr;
        nobody->name = strdup("");
        nobody->secName = strdup("");
        usm_add_user(nobody);
    }
    netsnmp_pdu* pdu = snmp_pdu_create(SNMP_MSG_GET);
    if (!pdu)
        return nullptr;
    pdu->version = SNMP_VERSION_3;
    pdu->securityName = strdup("");
    pdu->securityNameLen = 0;
    pdu->securityLevel = SNMP_SEC_LEVEL_NOAUTH;
    pdu->securityModel = SNMP_SEC_MODEL_USM;
    return pdu;
}

void SnmpSession::request(const SnmpRequest& request)
{
    m_request = request;
    m_pending = true;
    m_engineFound = false;
    m_clock.start();
    // The library repeats a request under the same number, so that a late answer still counts.
    m_triesLeft = m_settings.address.snmpVersion == 3 ? request.retries + 1 : 1;
    sendTry();
}

void SnmpSession::sendTry()
{
    m_reply.reset();
    if (!m_session && !open())
        return;
    m_probing = needsEngine();
    if (!m_probing)
        claimUser();
    sendPdu(m_probing ? makeEngineProbe() : makePdu());
}

void SnmpSession::sendPdu(netsnmp_pdu* pdu)
{
    netsnmp_session* session = snmp_sess_session(m_session);
    session->timeout = std::chrono::microseconds(m_request.timeout).count();
    session->retries = m_settings.address.snmpVersion == 3 ? 0 : m_request.retries;
    if (pdu && snmp_sess_async_send(m_session, pdu, &SnmpSession::onReply, this) != 0) {
        m_timer.start(m_request.timeout + milliseconds(1));
        return;
    }
    snmp_free_pdu(pdu);
    const int cause = session->s_snmp_errno;
    const QString text = QString::fromLocal8Bit(snmp_api_errstring(cause));
    if (cause == SNMPERR_BAD_SENDTO) // the network has no way there now
        fail(SnmpReply::Kind::Silence,
             tr("Cannot send to %1: %2").arg(m_settings.address.host, text));
    else
        fail(SnmpReply::Kind::Refusal, tr("The request cannot be made: %1").arg(text));
}

// Before anything is sent, or instead of waiting on; told from the event loop.
void SnmpSession::fail(SnmpReply::Kind kind, const QString& message)
{
    m_reply = SnmpReply();
    m_reply->kind = kind;
    m_reply->message = message;
    m_triesLeft = 1;
    m_timer.start(0);
}

// Runs inside the library: notes what came, nothing more.
int SnmpSession::onReply(int operation, netsnmp_session*, int, netsnmp_pdu* pdu, void* self)
{
    auto* session = static_cast<SnmpSession*>(self);
    const bool report = pdu && pdu->command == SNMP_MSG_REPORT;
    switch (operation) {
    case NETSNMP_CALLBACK_OP_RECEIVED_MESSAGE:
        if (!report)
            session->m_reply = toReply(*pdu);
        else if (session->m_probing)
            (session->m_reply = SnmpReply())->kind = SnmpReply::Kind::Answer;
        else
            session->m_reportError = snmpv3_get_report_type(pdu);
        return 1;
    case NETSNMP_CALLBACK_OP_SEC_ERROR:
        if (!session->m_probing && !session->m_reply) {
            const int error = report ? snmpv3_get_report_type(pdu) : session->m_reportError;
            session->m_reply = SnmpReply();
            // An engine that has restarted: a matter of opening the session anew.
            if (error != SNMPERR_NOT_IN_TIME_WINDOW && error != SNMPERR_UNKNOWN_ENG_ID) {
                session->m_reply->kind = SnmpReply::Kind::Refusal;
                session->m_reply->message = session->securityError(error);
            }
        }
        return 1;
    case NETSNMP_CALLBACK_OP_TIMED_OUT:
    case NETSNMP_CALLBACK_OP_SEND_FAILED:
        if (!session->m_reply)
            session->m_reply = SnmpReply();
        return 1;
    default:
        return 1;
    }
}

QString SnmpSession::securityError(int error) const
{
    const DeviceAddress& address = m_settings.address;
    switch (error) {
    case SNMPERR_AUTHENTICATION_FAILURE:
        return tr("Wrong authentication secret or protocol: %1 refuses the digest of user \"%2\"")
            .arg(address.host, address.user);
    case SNMPERR_UNKNOWN_USER_NAME:
        return tr("Unknown user \"%1\" at %2").arg(address.user, address.host);
    case SNMPERR_UNSUPPORTED_SEC_LEVEL:
        return tr("%1 does not allow user \"%2\" the level %3")
            .arg(address.host, address.user, address.securityLevel);
    case SNMPERR_DECRYPTION_ERR:
        return tr("Wrong privacy secret or protocol: %1 cannot decrypt what user \"%2\" sends")
            .arg(address.host, address.user);
    default:
        return tr("%1 refuses the SNMPv3 message: %2")
            .arg(address.host, QString::fromLocal8Bit(snmp_api_errstring(error)));
    }
}

void SnmpSession::readSocket()
{
    if (!m_session)
        return;
    claimUser();
    const int socket = snmp_sess_transport(m_session)->sock;
    netsnmp_large_fd_set readable;
    netsnmp_large_fd_set_init(&readable, socket + 1);
    NETSNMP_LARGE_FD_ZERO(&readable);
    NETSNMP_LARGE_FD_SET(socket, &readable);
    const u_int forged = snmp_get_statistic(STAT_USMSTATSWRONGDIGESTS);
    snmp_sess_read2(m_session, &readable);
    netsnmp_large_fd_set_cleanup(&readable);
    // Some agents sign even their report of a wrong secret with the right one: the library drops
    // what it cannot verify, and only counts it.
    if (m_pending && !m_reply && snmp_get_statistic(STAT_USMSTATSWRONGDIGESTS) != forged)
        fail(SnmpReply::Kind::Refusal, securityError(SNMPERR_AUTHENTICATION_FAILURE));
    settleReply();
}

void SnmpSession::onTimer()
{
    if (m_session && !m_reply) {
        // An answer that waits in the socket has come in time: the thread was busy elsewhere.
        pollfd waiting{snmp_sess_transport(m_session)->sock, POLLIN, 0};
        if (::poll(&waiting, 1, 0) == 1) {
            m_timer.start(1);
            return readSocket();
        }
        claimUser();
        snmp_sess_timeout(m_session);
        // Repeated by the library, or woken a moment too early.
        if (!m_reply)
            m_timer.start(std::max(m_request.timeout / 8, milliseconds(2)));
    }
    settleReply();
}

void SnmpSession::settleReply()
{
    if (!m_reply)
        return;
    SnmpReply reply = *m_reply;
    m_reply.reset();
    if (!m_pending)
        return;
    if (m_probing && reply.kind == SnmpReply::Kind::Answer) {
        if (!needsEngine()) {
            m_probing = false;
            m_engineFound = true;
            claimUser();
            sendPdu(makePdu());
            return;
        }
        reply = SnmpReply();
    }
    if (reply.kind != SnmpReply::Kind::Silence)
        return deliver(reply);

    // Whoever has fallen silent starts afresh, and late answers go nowhere.
    const int triesLeft = m_triesLeft - 1;
    if (m_session && m_settings.address.snmpVersion == 3 && !needsEngine()) {
        const netsnmp_session* session = snmp_sess_session(m_session);
        free_enginetime(session->securityEngineID, session->securityEngineIDLen);
    }
    close();
    m_pending = true;
    m_triesLeft = triesLeft;
    if (m_triesLeft > 0)
        return sendTry();
    if (m_engineFound && reply.message.isEmpty())
        reply.message = tr("%1 answers, but not what user \"%2\" sends: wrong privacy secret or "
                           "protocol, or unknown context")
                            .arg(m_settings.address.host, m_settings.address.user);
    deliver(reply);
}

void SnmpSession::deliver(const SnmpReply& reply)
{
    m_timer.stop();
    m_pending = false;
    SnmpReply timed = reply;
    timed.elapsed = milliseconds(m_clock.elapsed());
    m_handler(timed);
}

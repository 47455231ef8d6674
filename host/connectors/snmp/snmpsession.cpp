#include "connectors/snmp/snmpsession.h"

#include "connectors/snmp/snmpengine.h"

#include <net-snmp/net-snmp-config.h>

#include <net-snmp/net-snmp-includes.h>

#include <net-snmp/library/lcd_time.h>

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

constexpr int kLibraryVersions[] = {SNMP_VERSION_1, SNMP_VERSION_2c, SNMP_VERSION_3};

// Stands for the session in the library's sets of descriptors; nothing is read from or written to
// the file of that number.
constexpr int kNoDescriptor = 0;

constexpr int kOwnerSize = sizeof(void*); // a transport carries a pointer to its session

SnmpSession* ownerOf(const netsnmp_transport* transport)
{
    SnmpSession* owner = nullptr;
    if (transport->data)
        memcpy(&owner, transport->data, kOwnerSize);
    return owner;
}

} // namespace

SnmpSession::SnmpSession(const DeviceSettings& settings, SnmpEngine& engine, Handler handler)
    : m_settings(settings)
    , m_engine(engine)
    , m_handler(std::move(handler))
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { onTimer(); });
}

SnmpSession::~SnmpSession()
{
    close();
}

void SnmpSession::setPeer(const QString& numericAddress, quint16 port)
{
    m_agent.setAddress(numericAddress);
    m_agentPort = port;
}

void SnmpSession::close()
{
    m_timer.stop();
    if (m_session)
        snmp_sess_close(m_session);
    m_session = nullptr;
    if (m_port)
        m_port->forget(this);
    m_port.reset();
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
    wanted.flags |= SNMP_FLAGS_DONT_PROBE;
    if (version == 3) {
        wanted.securityName = user.data();
        wanted.securityNameLen = static_cast<size_t>(user.size());
        wanted.contextName = context.data();
        wanted.contextNameLen = static_cast<size_t>(context.size());
        const QString error = m_engine.users().addSecurity(wanted, m_settings);
        if (!error.isEmpty()) {
            fail(SnmpReply::Kind::Refusal, error);
            return false;
        }
    } else {
        wanted.community = reinterpret_cast<u_char*>(community.data());
        wanted.community_len = static_cast<size_t>(community.size());
    }

    QString error;
    m_port = m_engine.ports().take(m_agent.protocol(), &error);
    if (m_port && !(m_session = snmp_sess_add(&wanted, makeTransport(this), nullptr, nullptr)))
        error = QString::fromLocal8Bit(snmp_api_errstring(wanted.s_snmp_errno));
    if (!m_session) {
        fail(SnmpReply::Kind::Silence, tr("No SNMP session to %1: %2").arg(address.host, error));
        return false;
    }
    // Asking for the engine is our own request: the library would wait for the answer.
    snmp_sess_session(m_session)->flags |= SNMP_FLAGS_DONT_PROBE;
    return true;
}

// The library's view of the port. It passes on what the port has taken in for this session, so
// that no descriptor of ours, which may have any number, gets into one of its sets.
netsnmp_transport* SnmpSession::makeTransport(SnmpSession* self)
{
    auto* transport = SNMP_MALLOC_TYPEDEF(netsnmp_transport);
    if (!transport)
        return nullptr;
    transport->domain = netsnmpUDPDomain;
    transport->domain_length = static_cast<int>(netsnmpUDPDomain_len);
    transport->sock = kNoDescriptor;
    transport->msgMaxSize = SNMP_MAX_PACKET_LEN;
    transport->f_send = &SnmpSession::onSend;
    transport->f_recv = &SnmpSession::onReceive;
    transport->f_close = [](netsnmp_transport*) { return 0; };
    transport->data = malloc(kOwnerSize); // freed by the library
    if (transport->data)
        memcpy(transport->data, &self, transport->data_length = kOwnerSize);
    return transport;
}

int SnmpSession::onSend(netsnmp_transport* transport, const void* bytes, int size, void**, int*)
{
    SnmpSession* self = ownerOf(transport);
    const QByteArray message(static_cast<const char*>(bytes), size);
    return self && self->m_port->send(message, self->m_agent, self->m_agentPort, self) ? size : -1;
}

int SnmpSession::onReceive(netsnmp_transport* transport, void* buffer, int size, void** opaque,
                           int* opaqueSize)
{
    *opaque = nullptr;
    *opaqueSize = 0;
    SnmpSession* self = ownerOf(transport);
    if (!self || self->m_received.size() > size)
        return -1;
    memcpy(buffer, self->m_received.constData(), static_cast<size_t>(self->m_received.size()));
    return self->m_received.size();
}

bool SnmpSession::needsEngine() const
{
    return m_settings.address.snmpVersion == 3 &&
           snmp_sess_session(m_session)->securityEngineIDLen == 0;
}

void SnmpSession::claimUser()
{
    if (m_settings.address.snmpVersion == 3 && m_session && !needsEngine())
        m_engine.users().claim(*snmp_sess_session(m_session), m_settings);
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
    netsnmp_pdu* pdu = SnmpUsers::addNobody() ? snmp_pdu_create(SNMP_MSG_GET) : nullptr;
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
             tr("Cannot send to %1: %2").arg(m_settings.address.host, m_port->errorText()));
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

void SnmpSession::receive(const QByteArray& message)
{
    claimUser();
    m_received = message;
    fd_set readable;
    FD_ZERO(&readable);
    FD_SET(kNoDescriptor, &readable);
    const u_int forged = snmp_get_statistic(STAT_USMSTATSWRONGDIGESTS);
    snmp_sess_read(m_session, &readable);
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
        if (m_port->hasWaiting()) {
            m_timer.start(1);
            return m_port->receive();
        }
        claimUser();
        snmp_sess_timeout(m_session);
        // Repeated by the library, or woken a moment too early.
        if (!m_reply)
            m_timer.start(std::max(m_request.timeout / 8, milliseconds(2)));
    }
    settleReply();
}

// After a silence; late answers go nowhere.
void SnmpSession::startAfresh()
{
    if (m_session && m_settings.address.snmpVersion == 3 && !needsEngine()) {
        const netsnmp_session* session = snmp_sess_session(m_session);
        free_enginetime(session->securityEngineID, session->securityEngineIDLen);
    }
    close();
    m_pending = true;
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

    startAfresh();
    if (--m_triesLeft > 0)
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

#include "snmp3agents.h"

#include "support/snmptable.h"

namespace {

constexpr std::size_t kAgents = 5;

QByteArray overrideLine(const SnmpOid& oid, const SnmpValue& value)
{
    const QByteArray name = "override ." + toText(oid).toLatin1();
    switch (value.type) {
    case SnmpValue::Type::Number:
        return name + " integer " + QByteArray::number(value.integer) + '\n';
    case SnmpValue::Type::ObjectId:
        return name + " object_id ." + toText(value.oid).toLatin1() + '\n';
    case SnmpValue::Type::Text:
        return name + " octet_str \"" + value.octets + "\"\n";
    default:
        return {};
    }
}

} // namespace

bool Snmp3Agents::start()
{
    SnmpTable table;
    table.loadFile(QStringLiteral(TEST_DATA "/snmp/three-phase.txt"));
    QByteArray objects;
    for (const auto& object : table.objects)
        objects += overrideLine(object.first, object.second);
    while (m_agents.size() < kAgents) {
        m_agents.push_back(std::make_unique<Snmpd>());
        if (!m_agents.back()->start(objects, true))
            return false;
    }
    return true;
}

QString Snmp3Agents::address(int number) const
{
    return m_agents[static_cast<std::size_t>(number) % kAgents]->address();
}

#include "snmptable.h"

#include "connectors/snmp/upsmib.h"

#include <QFile>

namespace {

SnmpReply errorReply(int status, std::size_t index)
{
    SnmpReply reply;
    reply.kind = SnmpReply::Kind::Answer;
    reply.errorStatus = status;
    reply.errorIndex = static_cast<int>(index);
    return reply;
}

} // namespace

SnmpOid SnmpTable::oid(const char* text)
{
    const SnmpOid parsed = oidFromText(text);
    return QByteArray(text).startsWith("1.3.6.") ? parsed : UpsMib::objects + parsed;
}

void SnmpTable::load(const QByteArray& text)
{
    for (const QByteArray& line : text.split('\n')) {
        const QByteArrayList parts = line.split(' ');
        if (line.startsWith('#') || parts.size() < 2)
            continue;
        const QByteArray value = parts.mid(2).join(' ');
        SnmpValue& object = objects[oid(parts[0].constData())];
        switch (parts[1][0]) {
        case 'i':
            object = SnmpValue::number(value.toLongLong());
            break;
        case 't':
            object = SnmpValue::text(value);
            break;
        case 'o':
            object = SnmpValue::objectId(oidFromText(value));
            break;
        default:
            object = SnmpValue::null();
        }
    }
}

void SnmpTable::loadFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    load(file.readAll());
}

void SnmpTable::set(const char* text, const SnmpValue& value)
{
    objects[oid(text)] = value;
}

void SnmpTable::removeBelow(const char* text)
{
    const SnmpOid root = oid(text);
    for (auto it = objects.begin(); it != objects.end();)
        it = it->first == root || isBelow(it->first, root) ? objects.erase(it) : std::next(it);
}

std::optional<SnmpReply> SnmpTable::answer(const SnmpRequest& request, int version)
{
    const int asked = static_cast<int>(request.variables.size());
    ++requests;
    largest = std::max(largest, asked);
    const bool bulk = request.kind == SnmpRequest::Kind::GetBulk;
    if (silent || asked > silentAbove || (bulk && bulkSilent))
        return {};
    if (asked > tooBigAbove)
        return errorReply(SnmpTooBig, 0);
    SnmpReply reply;
    if (sets >= refusesAfter) {
        reply.kind = SnmpReply::Kind::Refusal;
        reply.message = QStringLiteral("Unknown user");
        return reply;
    }
    switch (request.kind) {
    case SnmpRequest::Kind::Get:
        reply = get(request, version);
        break;
    case SnmpRequest::Kind::Set:
        ++sets;
        reply = write(request);
        if (setSilent)
            return {};
        break;
    default:
        reply = walk(request, version);
    }
    if (static_cast<int>(reply.variables.size()) > answersFirst)
        reply.variables.resize(static_cast<std::size_t>(answersFirst));
    return reply;
}

SnmpReply SnmpTable::get(const SnmpRequest& request, int version) const
{
    SnmpReply reply = errorReply(SnmpNoError, 0);
    for (std::size_t i = 0; i < request.variables.size(); ++i) {
        const SnmpOid& name = request.variables[i].oid;
        if (failing.count(name) > 0)
            return errorReply(SnmpGenErr, i + 1);
        const auto found = objects.find(name);
        if (found == objects.end() && version == 1)
            return errorReply(SnmpNoSuchName, i + 1);
        reply.variables.push_back({name, found == objects.end() ? SnmpValue() : found->second});
    }
    return reply;
}

SnmpReply SnmpTable::walk(const SnmpRequest& request, int version) const
{
    const bool bulk = request.kind == SnmpRequest::Kind::GetBulk;
    std::vector<SnmpVariable> row = request.variables;
    SnmpReply reply = errorReply(SnmpNoError, 0);
    for (int n = 0; n < (bulk ? request.repetitions : 1); ++n) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            const auto found = circular.count(row[i].oid) > 0 ? objects.find(row[i].oid)
                                                              : objects.upper_bound(row[i].oid);
            if (found == objects.end() && version == 1)
                return errorReply(SnmpNoSuchName, i + 1);
            if (found == objects.end())
                row[i].value = SnmpValue::absent();
            else
                row[i] = {found->first, found->second};
            reply.variables.push_back(row[i]);
        }
    }
    return reply;
}

SnmpReply SnmpTable::write(const SnmpRequest& request)
{
    if (setError != SnmpNoError)
        return errorReply(setError, static_cast<std::size_t>(setErrorIndex));
    for (std::size_t i = 0; i < request.variables.size(); ++i)
        if (refusing.count(request.variables[i].oid) > 0)
            return errorReply(SnmpGenErr, i + 1);
    SnmpReply reply = errorReply(SnmpNoError, 0);
    for (const SnmpVariable& variable : request.variables) {
        reply.variables.push_back(variable);
        if (setSaysNoInstance) {
            reply.variables.back().value = SnmpValue::absent();
            continue;
        }
        objects[variable.oid] = variable.value;
        if (onSet)
            onSet(variable);
    }
    return reply;
}

std::chrono::milliseconds hold(SnmpDialogue& dialogue, SnmpTable& table, int version)
{
    constexpr int kMostQuestions = 10000; // a dialogue that goes on for ever has failed
    std::chrono::milliseconds waited{0};
    for (int i = 0; i < kMostQuestions; ++i) {
        const std::optional<SnmpRequest> request = dialogue.next();
        if (!request)
            return waited;
        waited += request->delay;
        std::optional<SnmpReply> reply;
        for (int tries = 0; tries <= request->retries && !reply; ++tries) {
            reply = table.answer(*request, version);
            if (!reply)
                waited += request->timeout;
        }
        dialogue.take(reply.value_or(SnmpReply()));
    }
    qFatal("the dialogue does not end");
    return waited;
}

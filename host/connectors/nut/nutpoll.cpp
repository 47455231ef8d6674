#include "connectors/nut/nutpoll.h"

#include "connectors/nut/nutreading.h"

namespace {

// What the server says where its administrator wrote no description.
constexpr char kNoDescription[] = "Unavailable";

} // namespace

NutPoll::NutPoll(const QString& server, const QString& ups)
    : m_server(server)
    , m_ups(ups.toUtf8())
    , m_devices(server)
    , m_phase(m_ups.isEmpty() ? Phase::Choose : Phase::Variables)
{}

std::optional<NutQuestion> NutPoll::next()
{
    NutQuestion question;
    switch (m_phase) {
    case Phase::Choose:
        return m_devices.next();
    case Phase::Variables:
        question.line = "LIST VAR " + nutQuoted(m_ups);
        return question;
    case Phase::Description:
        question.line = "GET UPSDESC " + nutQuoted(m_ups);
        return question;
    case Phase::Done:
        break;
    }
    return {};
}

void NutPoll::take(const NutReply& reply)
{
    m_result.security = reply.security;
    switch (m_phase) {
    case Phase::Choose: {
        m_devices.take(reply);
        NutFailure failure;
        m_ups = m_devices.onlyOne(failure);
        if (failure)
            fail(failure);
        else
            m_phase = Phase::Variables;
        break;
    }
    case Phase::Variables:
        takeVariables(reply);
        break;
    case Phase::Description:
        takeDescription(reply);
        break;
    case Phase::Done:
        break;
    }
}

void NutPoll::takeVariables(const NutReply& reply)
{
    if (reply.failure)
        return fail(reply.failure);
    for (const NutWords& row : reply.rows) {
        if (row.size() < 4)
            return fail(nutNonsense(m_server));
        if (!isPrivateNutVariable(row.at(2)))
            m_variables.insert(row.at(2), row.at(3));
    }
    if (m_variables.value("ups.id").trimmed().isEmpty())
        m_phase = Phase::Description;
    else
        finish({});
}

void NutPoll::takeDescription(const NutReply& reply)
{
    if (reply.failure && !reply.failure.isAnswer())
        return fail(reply.failure);
    if (reply.failure)
        return finish({}); // the values stand without it
    const NutWords words = reply.rows.value(0);
    if (words.mid(0, 2) != NutWords{"UPSDESC", m_ups})
        return fail(nutNonsense(m_server));
    finish(words.value(2) == kNoDescription ? QByteArray() : words.value(2));
}

void NutPoll::fail(const NutFailure& failure)
{
    m_phase = Phase::Done;
    m_result.state = failure.state;
    m_result.message = failure.message;
}

void NutPoll::finish(const QByteArray& description)
{
    m_phase = Phase::Done;
    m_result.state = LinkState::Live;
    m_result.reading = readingFromNut(m_variables, description, QString::fromUtf8(m_ups));
    noteSecurity(m_result.reading);
}

void NutPoll::noteSecurity(UpsReading& reading) const
{
    const LinkSecurity& link = m_result.security;
    if (!link.isEncrypted && link.isLocal)
        return;
    if (!link.isEncrypted)
        reading.notes << tr("The link to the server is in plain text: others on the network can "
                            "read and change what it says.");
    else if (!link.isTrusted)
        reading.notes
            << tr("The link to the server is encrypted, but not trusted: %1").arg(link.issue);
}

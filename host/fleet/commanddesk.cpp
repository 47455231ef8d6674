#include "fleet/commanddesk.h"

CommandDesk::CommandDesk(Fleet& fleet, EventLog& log, WhoIsThere whoIsThere, QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
    , m_log(log)
    , m_whoIsThere(std::move(whoIsThere))
{
    connect(&fleet, &Fleet::commandFinished, this, &CommandDesk::takeResult);
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this,
            [this](int index) { forget(m_fleet.at(index)); });
}

int CommandDesk::levelFor(const Device& device) const
{
    if (m_locked)
        return 0;
    const int level = m_whoIsThere().level;
    return device.isSimulated() ? std::max(level, kCommandLevel) : level;
}

void CommandDesk::post(Device* device, int code, const QMap<QString, QVariant>& command)
{
    const QString value = command.value(QStringLiteral("controlValue")).toString();
    CommandRequest request = commandFromEvent(code, value);
    const QString label =
        request.command ? commandSentence(*request.command) : tr("Command %1").arg(code);

    DeskEvent event;
    event.time = QDateTime::currentDateTime();
    event.operatorName = m_whoIsThere().name;
    event.device = device->name();
    event.code = code;
    event.text = label;
    event.value = value;
    const Pending pending{m_log.append(event), device->name(), label, device};

    if (levelFor(*device) < kCommandLevel) {
        conclude(pending, CommandOutcome::Refused,
                 tr("Nobody who may command this device is logged in. Log in and try again."));
        return;
    }
    if (!request.command) {
        conclude(pending, CommandOutcome::Refused, request.error);
        return;
    }
    request.command->id = ++m_lastId;
    m_pending.insert(m_lastId, pending);
    emit sent(pending.device, pending.command);
    device->send(*request.command);
}

void CommandDesk::takeResult(Device* device, const CommandResult& result)
{
    const auto found = m_pending.find(result.id);
    if (found == m_pending.end() || found->target != device)
        return;
    const Pending pending = *found;
    m_pending.erase(found);
    conclude(pending, result.outcome, result.message);
    m_fleet.pollNow(device); // show the effect without waiting for the next poll
}

void CommandDesk::forget(const Device* device)
{
    for (auto it = m_pending.begin(); it != m_pending.end();) {
        if (it->target != device) {
            ++it;
            continue;
        }
        const Pending pending = *it;
        it = m_pending.erase(it);
        conclude(pending, CommandOutcome::NoAnswer,
                 tr("The device was removed or changed before it answered."));
    }
}

void CommandDesk::conclude(const Pending& pending, CommandOutcome outcome, const QString& message)
{
    const bool isBad = outcome != CommandOutcome::Done;
    const QString text = outcomeLabel(outcome);
    m_log.complete(pending.ticket, text, message, isBad);
    emit finished(pending.device, pending.command, text, message, isBad);
}

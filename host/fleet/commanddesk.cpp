#include "fleet/commanddesk.h"

#include "fleet/commandterms.h"

#include <QPointer>

CommandDesk::CommandDesk(Fleet& fleet, EventLog& log, WhoIsThere whoIsThere, QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
    , m_log(log)
    , m_whoIsThere(std::move(whoIsThere))
{
    connect(&fleet, &Fleet::commandFinished, this, &CommandDesk::takeResult);
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this, [this](int index) {
        forget(m_asked, m_fleet.at(index));
        forget(m_sent, m_fleet.at(index));
    });
}

int CommandDesk::levelFor(const Device& device) const
{
    if (!m_lockedBecause.isEmpty())
        return 0;
    const int level = m_whoIsThere().level;
    return device.isSimulated() ? std::max(level, kCommandLevel) : level;
}

CommandDesk::Barrier CommandDesk::barrierFor(const Device& device) const
{
    if (levelFor(device) >= kCommandLevel)
        return {};
    if (!m_lockedBecause.isEmpty())
        return {m_lockedBecause, false};
    const QString name = m_whoIsThere().name;
    if (name.isEmpty())
        return {tr("Nobody who may command this device is logged in."), true};
    return {tr("%1 may look, but not command: that takes level %2.").arg(name).arg(kCommandLevel),
            true};
}

void CommandDesk::post(Device* device, int code, const QMap<QString, QVariant>& command)
{
    const QString value = command.value(QStringLiteral("controlValue")).toString();
    const CommandRequest request = commandFromEvent(code, value);
    Pending pending;
    pending.target = device;
    pending.device = device->name();
    pending.label = request.command ? commandTerms(*request.command, device->settings())
                                    : tr("Unknown command %1").arg(code);
    pending.ticket = writeDown(*device, code, pending.label, value);
    if (!request.command)
        return conclude(pending, CommandOutcome::Refused, request.error);
    if (const Barrier barrier = barrierFor(*device); !barrier.reason.isEmpty())
        return conclude(pending, CommandOutcome::Refused, barrier.reason);
    pending.command = *request.command;
    pending.command.id = ++m_lastId;
    if (takesLoadDown(pending.command.kind))
        ask(pending);
    else
        send(pending);
}

quint64 CommandDesk::writeDown(const Device& device, int code, const QString& label,
                               const QString& value)
{
    DeskEvent event;
    event.kind = EventKind::Command;
    event.operatorName = m_whoIsThere().name;
    event.device = device.name();
    event.code = code;
    event.text = label;
    event.value = value;
    return m_log.append(event);
}

void CommandDesk::ask(const Pending& pending)
{
    if (!m_confirm)
        return conclude(pending, CommandOutcome::Refused,
                        tr("Nobody could be asked whether load may lose power."));
    const quint64 id = pending.command.id;
    m_asked.insert(id, pending);
    m_confirm(
        {commandLabel(pending.command.kind), commandWarning(pending.command, *pending.target)},
        [desk = QPointer<CommandDesk>(this), id](bool yes) {
            if (desk)
                desk->takeAnswer(id, yes);
        });
}

// The device may have gone while the question stood, and then nothing is waiting any more.
void CommandDesk::takeAnswer(quint64 id, bool yes)
{
    if (!m_asked.contains(id))
        return;
    const Pending pending = m_asked.take(id);
    if (!yes)
        return close(pending, tr("cancelled"), tr("Nothing was sent."), false);
    // So may the operator: the time of an idle one runs on.
    if (const Barrier barrier = barrierFor(*pending.target); !barrier.reason.isEmpty())
        return conclude(pending, CommandOutcome::Refused, barrier.reason);
    send(pending);
}

void CommandDesk::send(Pending pending)
{
    pending.since = QDateTime::currentDateTime();
    m_sent.insert(pending.command.id, pending);
    emit sent(pending.device, pending.label);
    pending.target->send(pending.command);
}

QVector<CommandDesk::UnderWay> CommandDesk::underWay() const
{
    QVector<UnderWay> commands;
    for (const Pending& pending : m_sent)
        commands += {pending.device, pending.label, pending.since};
    std::sort(commands.begin(), commands.end(),
              [](const UnderWay& a, const UnderWay& b) { return a.since < b.since; });
    return commands;
}

void CommandDesk::takeResult(Device* device, const CommandResult& result)
{
    const auto found = m_sent.find(result.id);
    if (found == m_sent.end() || found->target != device)
        return;
    const Pending pending = *found;
    m_sent.erase(found);
    conclude(pending, result.outcome, result.message);
    m_fleet.pollNow(device); // show the effect without waiting for the next poll
}

void CommandDesk::forget(PendingById& pending, const Device* device)
{
    for (auto it = pending.begin(); it != pending.end();) {
        if (it->target != device) {
            ++it;
            continue;
        }
        const Pending ended = *it;
        it = pending.erase(it);
        const bool isSent = &pending != &m_asked;
        conclude(ended, isSent ? CommandOutcome::Unknown : CommandOutcome::NoAnswer,
                 isSent ? tr("The device was removed or changed before it answered.")
                        : tr("The device was removed or changed; nothing was sent."));
    }
}

void CommandDesk::conclude(const Pending& pending, CommandOutcome outcome, const QString& message)
{
    close(pending, outcomeLabel(outcome), message, outcome != CommandOutcome::Done);
}

void CommandDesk::close(const Pending& pending, const QString& outcome, const QString& message,
                        bool isBad)
{
    m_log.complete(pending.ticket, outcome, message, isBad);
    emit finished(pending.device, pending.label, outcome, message, isBad);
}

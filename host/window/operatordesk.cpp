#include "window/operatordesk.h"

#include "fleet/commanddesk.h"
#include "window/closeguard.h"
#include "window/confirmbox.h"

OperatorDesk::OperatorDesk(OperatorSession& session, WatchList& list, CommandDesk& commands,
                           EventLog& log, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_log(log)
{
    session.setSource([&list] {
        list.readOperators();
        return Operators(list.operators());
    });
    list.setGuard([&session] { return session.whyNoChange(); });
    commands.setConfirm([window](const CommandDesk::Question& question,
                                 const CommandDesk::Answer& answer) {
        ConfirmBox::ask({question.command, question.text, {}, question.command}, window, answer);
    });
    auto* gate = new OperatorGate(session, window);
    connect(&commands, &CommandDesk::logInWanted, gate, &OperatorGate::askWhoIsThere);
    connect(&session, &OperatorSession::failed, this, &OperatorDesk::noteFailure);
    connect(&list, &WatchList::edited, this, &OperatorDesk::noteEdit);
    new CloseGuard(commands, window);
}

void OperatorDesk::noteFailure(const QString& name)
{
    DeskEvent event;
    event.kind = EventKind::LogIn;
    event.operatorName = name;
    event.text = tr("Log-in");
    event.outcome = tr("failed");
    event.message = name.isEmpty() ? tr("There is no operator of the name that was given.")
                                   : tr("The password was wrong.");
    event.isBad = true;
    m_log.append(event);
}

void OperatorDesk::noteEdit(const QString& device, const QString& what)
{
    DeskEvent event;
    event.kind = EventKind::Configuration;
    event.operatorName = m_session.name();
    event.device = device;
    event.text = what;
    event.outcome = tr("done");
    m_log.append(event);
}

#include "window/operatordesk.h"

#include "fleet/commanddesk.h"
#include "window/closeguard.h"
#include "window/confirmbox.h"
#include "window/settingsdialog.h"

#include <QAction>

OperatorDesk::OperatorDesk(OperatorSession& session, WatchList& list, CommandDesk& commands,
                           EventLog& log, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_list(list)
    , m_log(log)
    , m_window(window)
    , m_gate(new OperatorGate(session, window))
    , m_settings(new QAction(tr("&Settings\u2026"), this))
{
    m_settings->setObjectName(QStringLiteral("Settings"));
    m_settings->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    connect(m_settings, &QAction::triggered, this, &OperatorDesk::openSettings);

    session.setSource([&list] {
        list.readOperators();
        return Operators(list.operators());
    });
    list.setGuard([&session] { return session.whyNoChange(); });
    commands.setConfirm([window](const CommandDesk::Question& question,
                                 const CommandDesk::Answer& answer) {
        ConfirmBox::ask({question.command, question.text, {}, question.command}, window, answer);
    });
    connect(&commands, &CommandDesk::logInWanted, m_gate, &OperatorGate::askWhoIsThere);
    connect(&session, &OperatorSession::failed, this, &OperatorDesk::noteFailure);
    connect(&list, &WatchList::edited, this, &OperatorDesk::noteEdit);
    new CloseGuard(commands, window);
}

void OperatorDesk::openSettings()
{
    m_gate->pass([this] {
        auto* dialog = new SettingsDialog(m_list, m_window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
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

#include "window/closeguard.h"

#include "window/confirmbox.h"

#include <QCloseEvent>
#include <QWidget>

namespace {

QString listOf(const QVector<CommandDesk::UnderWay>& commands)
{
    QStringList lines;
    for (const CommandDesk::UnderWay& command : commands)
        lines << CloseGuard::tr("%1: %2, sent at %3")
                     .arg(command.device, command.command,
                          command.since.toString(QStringLiteral("HH:mm:ss")));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

CloseGuard::CloseGuard(const CommandDesk& desk, QWidget* window)
    : QObject(window)
    , m_desk(desk)
    , m_window(window)
{
    window->installEventFilter(this);
}

bool CloseGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Close || m_isAgreed || m_desk.underWay().isEmpty())
        return QObject::eventFilter(watched, event);
    event->ignore();
    if (m_box)
        return true;
    m_box = ConfirmBox::ask(
        {tr("Commands under way"), tr("Close while commands have no result yet?"),
         tr("%1\n\nA command that was sent is not taken back by closing. It may be left half-done: "
            "sent, but not followed to its end, so that its result stays unknown; a command that "
            "takes several steps may stop between them.")
             .arg(listOf(m_desk.underWay())),
         tr("C&lose")},
        m_window, [this](bool yes) {
            m_isAgreed = yes;
            if (yes)
                m_window->close();
        });
    return true;
}

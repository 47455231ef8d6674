#ifndef CLOSEGUARD_H
#define CLOSEGUARD_H

// Asks before the window closes over commands that have no result yet.
// May touch: the command desk.

#include "fleet/commanddesk.h"

#include <QPointer>

class ConfirmBox;
class QWidget;

class CloseGuard : public QObject
{
    Q_OBJECT

public:
    // Both must outlive the guard.
    CloseGuard(const CommandDesk& desk, QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const CommandDesk& m_desk;
    QWidget* m_window;
    QPointer<ConfirmBox> m_box;
    bool m_isAgreed = false;
};

#endif // CLOSEGUARD_H

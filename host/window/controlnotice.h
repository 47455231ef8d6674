#ifndef CONTROLNOTICE_H
#define CONTROLNOTICE_H

// Says above the control page why it is disabled, and offers to log in where that helps.
// May touch: the command desk.

#include "fleet/commanddesk.h"

#include <QFrame>

class QLabel;
class QPushButton;

class ControlNotice : public QFrame
{
    Q_OBJECT

public:
    // Both must outlive the notice. Starts hidden.
    ControlNotice(const Device& device, CommandDesk& desk, QWidget* parent = nullptr);

    // onControlPage: whether that page is the one in sight.
    void refresh(bool onControlPage);

private:
    const Device& m_device;
    CommandDesk& m_desk;
    QLabel* m_text;
    QPushButton* m_logIn;
};

#endif // CONTROLNOTICE_H

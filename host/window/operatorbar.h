#ifndef OPERATORBAR_H
#define OPERATORBAR_H

// Who is logged in, and the button that changes it.
// May touch: the operator session, the library's label.

#include "operators/operatorsession.h"

#include <QWidget>

class ElidedLabel;
class QPushButton;

class OperatorBar : public QWidget
{
    Q_OBJECT

public:
    explicit OperatorBar(OperatorSession& session, QWidget* parent = nullptr);

signals:
    void loginWanted();

private:
    void refresh();

    OperatorSession& m_session;
    ElidedLabel* m_who;
    QPushButton* m_button;
};

#endif // OPERATORBAR_H

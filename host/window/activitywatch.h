#ifndef ACTIVITYWATCH_H
#define ACTIVITYWATCH_H

// Tells the operator session that somebody is at the desk: any key, click or wheel anywhere.
// May touch: the operator session.

#include "operators/operatorsession.h"

#include <QObject>

class ActivityWatch : public QObject
{
    Q_OBJECT

public:
    // Watches the whole application as long as it lives.
    explicit ActivityWatch(OperatorSession& session, QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    OperatorSession& m_session;
};

#endif // ACTIVITYWATCH_H

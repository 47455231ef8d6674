#ifndef SCRIPTEDCONNECTOR_H
#define SCRIPTEDCONNECTOR_H

// A connector that answers what a test tells it to, when the test says so.

#include "connectors/connector.h"

#include <QVector>

class ScriptedConnector : public Connector
{
    Q_OBJECT

public:
    void poll() override { ++polls; }
    void send(const UpsCommand& command) override { sent << command; }

    void answer(LinkState state, const UpsReading& reading = {}, const QString& message = {},
                const LinkSecurity& security = {})
    {
        emit polled({state, reading, message, security});
    }
    void finish(quint64 id, CommandOutcome outcome, const QString& message = {})
    {
        emit commandFinished({id, outcome, message});
    }

    int polls = 0;
    QVector<UpsCommand> sent;
};

#endif // SCRIPTEDCONNECTOR_H

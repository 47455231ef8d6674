#ifndef CONNECTOR_H
#define CONNECTOR_H

// One device on one side, readings and command results on the other.
// May touch: readings and Qt Core; a connector knows its protocol library, never a widget, the
// fleet or the history.

#include "connectors/linksecurity.h"
#include "connectors/linkstate.h"
#include "connectors/upscommand.h"
#include "reading/upsreading.h"

#include <QObject>
#include <QString>

#include <optional>

// What one poll brought. reading matters only when state is Live.
struct PollResult {
    LinkState state = LinkState::Connecting;
    UpsReading reading;
    QString message;            // why it is not Live, naming the cause; plain text for the operator
    LinkSecurity security = {}; // of links that can be encrypted
    // Of a poll that another desk made, and has judged: when it began, on this one's boot clock.
    std::optional<qint64> askedBootMs = {};
};
Q_DECLARE_METATYPE(PollResult)

// Lives on the GUI thread; none of its functions blocks. I/O happens elsewhere, only values travel.
class Connector : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Starts one poll, which ends with exactly one polled(). While one is under way a further call
    // is ignored. No retry and no schedule in here: the fleet decides when to poll.
    virtual void poll() = 0;

    // Sends the command once, follows it to its result and ends with exactly one
    // commandFinished() of the same id.
    virtual void send(const UpsCommand& command) = 0;

signals:
    void polled(const PollResult& result);
    void commandFinished(const CommandResult& result);
};

#endif // CONNECTOR_H

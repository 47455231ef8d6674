#ifndef NUTPOLL_H
#define NUTPOLL_H

// One poll of one device: what to ask for next, and what the answers add up to.
// May touch: dialogues, readings, connector results. No socket.

#include "connectors/connector.h"
#include "connectors/nut/nutdevices.h"

class NutPoll : public NutDialogue
{
    Q_DECLARE_TR_FUNCTIONS(NutPoll)

public:
    // server: "HOST port PORT", for messages; ups: empty where the address names none.
    NutPoll(const QString& server, const QString& ups);

    std::optional<NutQuestion> next() override;
    void take(const NutReply& reply) override;

    // When all is said.
    PollResult result() const { return m_result; }

private:
    enum class Phase { Choose, Variables, Description, Done };

    void takeVariables(const NutReply& reply);
    void takeDescription(const NutReply& reply);
    void fail(const NutFailure& failure);
    void finish(const QByteArray& description);
    void noteSecurity(UpsReading& reading) const;

    const QString m_server;
    QByteArray m_ups;
    NutDevices m_devices;
    Phase m_phase;
    QMap<QByteArray, QByteArray> m_variables;
    PollResult m_result;
};

#endif // NUTPOLL_H

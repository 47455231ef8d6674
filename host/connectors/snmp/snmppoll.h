#ifndef SNMPPOLL_H
#define SNMPPOLL_H

// One poll of one agent: which objects to ask for next, and what the answers add up to.
// May touch: values, readings and connector results.

#include "connectors/snmp/snmpdialogue.h"

#include "connectors/connector.h"

#include <QCoreApplication>

#include <deque>
#include <set>

// What polls of one agent learn about it, for the next poll to use.
struct SnmpMemory {
    static constexpr int kMostObjects = 20; // their answer stays well below the size of a datagram

    int objectsPerRequest = kMostObjects;
    bool bulk = true;    // GETBULK is answered
    bool proven = false; // a whole poll has gone through like this
    // Scalars for which SNMPv1 refuses the whole request.
    std::set<SnmpOid> missing;
    int pollsUntilAskedAgain = 0;
    std::optional<qint64> upTime; // 1/100 s
};

class SnmpPoll : public SnmpDialogue
{
    Q_DECLARE_TR_FUNCTIONS(SnmpPoll)

public:
    struct Limits {
        int version = 2;
        std::chrono::milliseconds timeout{5000};
        int retries = 1;
        QString peer; // "HOST:PORT", for messages
    };

    // memory must outlive the poll.
    SnmpPoll(const Limits& limits, SnmpMemory& memory);

    std::optional<SnmpRequest> next() override;
    void take(const SnmpReply& reply) override;

    // What the poll brought. Before next() is empty: what to say when it is broken off.
    PollResult result() const;

private:
    enum class Phase { Probe, Scalars, Columns, Done };
    struct Column {
        SnmpOid root;
        SnmpOid last;
        int rows = 0;
    };

    bool usesBulk() const;
    SnmpRequest nextQuestion();
    std::chrono::milliseconds trialTimeout() const;

    void takeSilence(const QString& message);
    void takeError(const SnmpReply& reply);
    void dropAsked(std::size_t position, bool remember);
    void askForFewer(std::size_t objects);
    void takeScalars(const std::vector<SnmpVariable>& variables);
    void takeColumns(const std::vector<SnmpVariable>& variables);
    bool advance(Column& column, const SnmpVariable& variable);
    void finish(LinkState state, const QString& message = {});
    void finishWithValues();
    void finishWithReading();

    Limits m_limits;
    SnmpMemory& m_memory;
    bool m_wasProven;
    Phase m_phase;
    std::deque<SnmpOid> m_scalars; // still to be asked for
    std::deque<Column> m_columns;  // still to be walked
    std::size_t m_asked = 0;       // so many of these, from the front, are in the current request
    std::size_t m_most;            // objects per request, for the rest of this poll
    std::chrono::milliseconds m_roundTrip{0};
    SnmpValues m_values;
    bool m_denied = false; // the agent has objects that it does not show us
    UpsReading m_reading;
    LinkState m_state = LinkState::Lost;
    QString m_message;
};

#endif // SNMPPOLL_H

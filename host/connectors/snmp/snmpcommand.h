#ifndef SNMPCOMMAND_H
#define SNMPCOMMAND_H

// One command to one agent, from looking whether it has the objects to seeing the result.
// May touch: values, commands, readings and the UPS-MIB.
//
// A setting is sent once; after a silence it is looked at, not sent again. A test counts as done
// when it has begun: a discharge test runs for hours, and how it ends is told by the alarms of the
// readings. A countdown counts as done when the agent shows it running, or its effect; what was so
// before the command proves nothing.

#include "connectors/snmp/snmpdialogue.h"

#include "connectors/upscommand.h"

#include <QCoreApplication>

#include <deque>

class SnmpCommand : public SnmpDialogue
{
    Q_DECLARE_TR_FUNCTIONS(SnmpCommand)

public:
    struct Limits {
        std::chrono::milliseconds timeout{5000};
        int retries = 1; // of questions, never of settings
        bool shutdownWholeUps = false;
        QString account; // "community" or "user NAME", for messages
    };

    SnmpCommand(const UpsCommand& command, const Limits& limits);

    std::optional<SnmpRequest> next() override;
    void take(const SnmpReply& reply) override;

    // Before next() is empty: that nothing is known.
    CommandResult result() const { return m_result; }

private:
    enum class Phase { Before, Set, Undo, After, Done };

    bool isTest() const;
    void look(const std::vector<SnmpOid>& objects, std::chrono::milliseconds delay = {});
    bool seen(const SnmpOid& object) const;
    std::optional<qint64> number(const SnmpOid& object) const;
    std::optional<qint64> numberBefore(const SnmpOid& object) const;

    void takeRefusal(const QString& cause);
    void takeLook(const SnmpReply& reply);
    void set(const SnmpOid& object, int value);
    void prepareTest();
    void prepareControl();
    bool planShutdown();
    void takeSet(const SnmpReply& reply);
    void follow();
    bool testShowsResult();
    bool endedTestShowsResult(qint64 result);
    bool controlShowsResult();
    bool outputHasSwitched() const;
    bool countdownHasBegun() const;
    void finishUnknown();
    void refuse(int errorStatus, const SnmpOid& object);
    void finish(CommandOutcome outcome, const QString& message);

    UpsCommand m_command;
    Limits m_limits;
    CommandResult m_result;
    Phase m_phase = Phase::Before;
    std::deque<SnmpOid> m_looks; // still to be asked for
    std::chrono::milliseconds m_delay{0};
    SnmpValues m_seen;                                // as last answered
    SnmpValues m_before;                              // as answered before the setting
    std::deque<std::vector<SnmpVariable>> m_settings; // one request each
    SnmpOid m_countdown;                              // the object whose countdown shows the result
    int m_wanted = 0;                                 // s that it was set to
    std::chrono::milliseconds m_sinceBefore{0};       // from the last look before the setting
    std::vector<SnmpVariable> m_undo;                 // to send when a later setting is refused
    bool m_unclear = false;                           // a setting was not answered
    int m_lockTries = 0;
    int m_rounds = 0;
};

#endif // SNMPCOMMAND_H

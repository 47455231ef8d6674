#ifndef NUTORDER_H
#define NUTORDER_H

// One command of the operator to one device, from looking what it offers to its result.
// May touch: dialogues, commands. No socket.
//
// Looking may be repeated; what is ordered goes out once. When the connection breaks before the
// answer nobody knows whether it arrived, and sending it again could carry it out twice.

#include "connectors/nut/nutcommands.h"
#include "connectors/nut/nutdevices.h"
#include "connectors/nut/nutreading.h"

class NutOrder : public NutDialogue
{
    Q_DECLARE_TR_FUNCTIONS(NutOrder)

public:
    struct Settings {
        QString server; // "HOST port PORT", for messages
        QString ups;
        QString user;
        QString secret;
        std::chrono::milliseconds limit{5000}; // of each step
    };
    // How often a running order is asked about, and how many limits long: drivers of slow devices
    // take their time.
    static constexpr std::chrono::milliseconds kFollowInterval{250};
    static constexpr int kFollowLimits = 4;

    NutOrder(const UpsCommand& command, const Settings& settings);

    std::optional<NutQuestion> next() override;
    void take(const NutReply& reply) override;

    // When all is said.
    CommandResult result() const { return m_result; }

private:
    enum class Phase { Choose, Commands, Writable, User, Password, Tracking, Send, Follow, Done };
    // What is sent: settings first, the instant command last.
    struct Step {
        QByteArray variable; // empty: an instant command
        QByteArray text;     // the value, or the name of the command

        QString label() const;
        QByteArray line(const QByteArray& ups) const;
    };

    NutQuestion logIn() const;
    void takeLook(const NutReply& reply);
    void takeLogin(const NutReply& reply);
    void takeSent(const NutReply& reply);
    void takeFollowed(const NutReply& reply);
    void plan();
    void goOn(bool isTracked);
    void lookAgain(const NutFailure& failure);
    void refuseBefore(const NutFailure& failure);
    void finish(CommandOutcome outcome, const QString& message);
    QString label() const { return m_steps.first().label(); }

    const UpsCommand m_command;
    const Settings m_settings;
    NutDevices m_devices;
    QByteArray m_ups;
    Phase m_phase;
    QList<QByteArray> m_offered;
    NutVariables m_writable;
    NutCommandPlan m_plan;
    QList<Step> m_steps; // the first one is under way
    bool m_loggedIn = false;
    quint64 m_login = 0;        // the connection that the server knows the account on
    bool m_isLoginLost = false; // once: it may have closed between login and order
    bool m_hasSent = false;     // a step, at least
    bool m_isFollowing = false; // a login leads back to that
    QByteArray m_tracking;
    quint64 m_connection = 0; // that took the step
    std::chrono::milliseconds m_followed{0};
    CommandResult m_result;
};

#endif // NUTORDER_H

#ifndef DEVICE_H
#define DEVICE_H

// One watched UPS: its settings, its connector and what is known of it, with the age of that.
// May touch: connectors by their base class, readings; no widget.

#include "connectors/connector.h"
#include "connectors/devicesettings.h"
#include "fleet/fleetclock.h"
#include "fleet/pollplan.h"
#include "fleet/urgency.h"
#include "reading/devicesnapshot.h"

#include <QObject>

#include <memory>

class Device : public QObject
{
    Q_OBJECT

public:
    // firstDueMs: monotonic ms at which the first poll is due.
    Device(const DeviceSettings& settings, std::unique_ptr<Connector> connector,
           const FleetClock& clock, qint64 firstDueMs);
    ~Device() override;

    const DeviceSettings& settings() const { return m_settings; }
    QString name() const { return m_settings.displayName(); }
    // As it may be shown: without a community.
    QString address() const { return shownAddress(m_settings.address); }
    bool isSimulated() const;

    // Live only while the last good reading is young enough to be called so: a reading that has
    // outlived its limit (a machine back from suspend) is stale whatever the last poll said.
    LinkState link() const;
    QString message() const; // why the device is not live; plain text
    // What the last answer came over.
    const LinkSecurity& security() const { return m_security; }
    int failedPolls() const { return m_plan.failures(); }

    // The last good reading, null before the first.
    const UpsReading* reading() const { return m_reading ? &*m_reading : nullptr; }
    // Counts good readings, so that a view knows a new one from one it has shown; 0 before the
    // first.
    qint64 readingNumber() const { return m_readingNumber; }
    // ms since the poll began that brought the last good reading; -1 before the first.
    qint64 ageMs() const;
    Condition condition() const;
    void setThresholds(const Thresholds& thresholds);
    // Since when the desk has seen the device in that condition. A poll or two that failed in
    // between do not make it a new one.
    QDateTime conditionSince() const { return m_noticed.since; }
    // An earlier run of the desk has seen it begin; a later time than is known changes nothing.
    void setConditionSince(const QDateTime& since);
    // The same for the results that follow, where they show that kind of condition: whoever hears
    // of a result shall hear the onset with it.
    void expectCondition(ConditionKind kind, const QDateTime& since);

    // Empty before the first good reading: a view must not be fed with an empty snapshot.
    QMap<int, QVariant> snapshot(SnapshotPage page) const;

    // For the fleet's schedule.
    qint64 dueMs() const { return m_plan.dueMs(); }
    qint64 placeAfter(qint64 nowMs) const { return m_plan.placeAfter(nowMs); }
    bool isPolling() const { return m_pollStarted >= 0; }
    void startPoll();
    // Polls at that time (monotonic ms) where it is sooner than planned. A poll that is under way
    // began before there was a reason to hurry (before a suspend, or a command), so another
    // follows.
    void hurry(qint64 atMs);
    // What a poll of another desk has brought; it says when it was asked.
    void takeResult(const PollResult& result);
    // Until that monotonic ms nothing hurries the device: what it needs is still to come. 0: it has
    // come.
    void hold(qint64 untilMs) { m_heldUntilMs = untilMs; }
    bool isHeld() const { return m_heldUntilMs > 0; }
    // Ends a poll that the connector never answered.
    void checkPollLimit();
    // Notices a change of condition; to be called when time has passed, too.
    void noteCondition();

    // Knows nothing any more: what comes next is compared to nothing before.
    void forget();

    // Sends it with the delays that are configured for this device.
    void send(UpsCommand command);

signals:
    void polled(); // one poll has ended, whatever it brought
    void commandFinished(const CommandResult& result);

private:
    struct Expected {
        std::optional<ConditionKind> kind;
        QDateTime since;
    };
    struct Noticed {
        Condition condition;
        QDateTime since;
        qint64 heardMs = 0; // boot ms of the last good reading in it
    };

    void planNext(LinkState state);
    void takeAnswer(const PollResult& result);
    void noteResult(const PollResult& result, qint64 askedBootMs);
    void takeReading(const UpsReading& reading, qint64 askedBootMs);
    double testSeconds(qint64 nowBootMs) const;
    qint64 pollLimitMs() const;
    qint64 freshnessLimitMs() const;
    qint64 shortGapMs() const;

    DeviceSettings m_settings;
    std::unique_ptr<Connector> m_connector;
    const FleetClock& m_clock;
    PollPlan m_plan;
    Thresholds m_thresholds;
    LinkState m_link = LinkState::Connecting;
    QString m_message;
    LinkSecurity m_security;
    std::optional<UpsReading> m_reading;
    qint64 m_readingBootMs = 0;
    qint64 m_readingNumber = 0;
    ConditionPast m_past;
    qint64 m_testSinceMs = -1; // boot ms of the first reading that told of the test; -1: no test
    Noticed m_noticed;
    Expected m_expected;
    std::optional<LinkState> m_judgedLink; // m_noticed was judged by; empty: judge anew
    Noticed m_beforeGap;                   // the last of the device while it was live
    qint64 m_pollStarted = -1;             // boot ms; -1: no poll is under way
    qint64 m_askedMs = -1; // boot ms at which the poll began whose answer the connector still owes
    qint64 m_heldUntilMs = 0;
    bool m_followUp = false; // poll again when the one under way has ended
};

#endif // DEVICE_H

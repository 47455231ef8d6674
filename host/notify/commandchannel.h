#ifndef COMMANDCHANNEL_H
#define COMMANDCHANNEL_H

// Runs a program of the operator's for each announcement, never through a shell.
// May touch: processes.
//
// The words of an announcement are data: the program gets them in its environment only.
//   UPSDESK_DEVICE    name of the device
//   UPSDESK_URGENCY   normal, notice, warning, alarm, critical
//   UPSDESK_TEXT      "On battery, 12 % left"
//   UPSDESK_SINCE     ISO 8601 with zone
//   UPSDESK_RECOVERY  1 when it needs nobody any more, else 0

#include "notify/notifychannel.h"

#include <QQueue>
#include <QStringList>

class QProcess;

class CommandChannel : public NotifyChannel
{
    Q_OBJECT

public:
    static constexpr int kTimeLimitMs = 30 * 1000; // then it is killed
    static constexpr int kMostWaiting = 100;       // announcements; what comes then is refused

    // commandLine: a program and its arguments, split at blanks; double quotes hold words together.
    explicit CommandChannel(const QString& commandLine, QObject* parent = nullptr,
                            int timeLimitMs = kTimeLimitMs);
    ~CommandChannel() override;

    void tell(const Announcement& announcement) override;

private:
    void startNext();
    QString fault(int code, int status) const;
    void finish(const QString& reason);

    const QStringList m_words;
    const int m_timeLimitMs;
    QQueue<Announcement> m_waiting;
    QProcess* m_running = nullptr; // one at a time, so that they arrive in their order
};

#endif // COMMANDCHANNEL_H

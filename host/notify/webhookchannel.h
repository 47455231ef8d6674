#ifndef WEBHOOKCHANNEL_H
#define WEBHOOKCHANNEL_H

// Posts each announcement as JSON to an address on the web.
// May touch: Qt Network. Certificates are checked; nothing is followed elsewhere.
//
//  {"device": "Plant room", "urgency": "alarm", "state": "On battery", "text": "On battery",
//   "alarms": [...], "since": "2024-01-01T12:00:00+01:00", "recovery": false, "test": false}

#include "notify/notifychannel.h"

#include <QUrl>

#include <chrono>

class QNetworkAccessManager;
class QNetworkReply;

class WebhookChannel : public NotifyChannel
{
    Q_OBJECT

public:
    // Pauses before further tries of one announcement.
    static constexpr std::chrono::seconds kPauses[] = {
        std::chrono::seconds(5), std::chrono::seconds(30), std::chrono::seconds(120)};
    static constexpr int kMostWaiting = 100; // announcements; what comes then is refused
    static constexpr int kTimeLimitMs = 10 * 1000;

    explicit WebhookChannel(const QUrl& url, QObject* parent = nullptr);

    void tell(const Announcement& announcement) override;

private:
    void post(const QByteArray& body, int tries, bool isTest);
    void take(QNetworkReply* reply, const QByteArray& body, int tries, bool isTest);

    const QUrl m_url;
    QNetworkAccessManager* m_network;
    int m_waiting = 0;
};

#endif // WEBHOOKCHANNEL_H

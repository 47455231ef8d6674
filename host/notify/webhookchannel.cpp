#include "notify/webhookchannel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

#include <iterator>

namespace {

constexpr int kFirstError = 300; // HTTP
constexpr int kServerError = 500;

QByteArray bodyOf(const Announcement& announcement)
{
    const QDateTime since = announcement.since.toOffsetFromUtc(announcement.since.offsetFromUtc());
    const QJsonObject object{
        {QStringLiteral("device"), announcement.device},
        {QStringLiteral("urgency"), urgencyName(announcement.condition)},
        {QStringLiteral("state"), announcement.condition.state},
        {QStringLiteral("text"), announcement.condition.text},
        {QStringLiteral("alarms"), QJsonArray::fromStringList(announcement.condition.alarms)},
        {QStringLiteral("since"), since.toString(Qt::ISODate)},
        {QStringLiteral("recovery"), announcement.isRecovery},
        {QStringLiteral("test"), announcement.isTest},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// Addresses of webhooks often hold a token: only the host may be shown.
QString reasonOf(const QNetworkReply& reply, int status)
{
    const QString cause =
        status >= kFirstError
            ? WebhookChannel::tr("it answered with status %1").arg(status)
            : (reply.error() == QNetworkReply::OperationCanceledError
                   ? WebhookChannel::tr("no answer in time")
                   : WebhookChannel::tr("connection failed (%1)").arg(reply.error()));
    return WebhookChannel::tr("The webhook at %1 did not take a notification: %2.")
        .arg(reply.url().host(), cause);
}

} // namespace

WebhookChannel::WebhookChannel(const QUrl& url, QObject* parent)
    : NotifyChannel(parent)
    , m_url(url)
    , m_network(new QNetworkAccessManager(this))
{
    m_network->setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
    m_network->setTransferTimeout(kTimeLimitMs);
}

void WebhookChannel::tell(const Announcement& announcement)
{
    if (m_waiting >= kMostWaiting) {
        emit failed(tr("The webhook at %1 takes nothing: %2 notifications wait for it.")
                        .arg(m_url.host())
                        .arg(kMostWaiting));
        return;
    }
    ++m_waiting;
    post(bodyOf(announcement), 0, announcement.isTest);
}

void WebhookChannel::post(const QByteArray& body, int tries, bool isTest)
{
    QNetworkRequest request(m_url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("upsdesk"));
    QNetworkReply* reply = m_network->post(request, body);
    connect(reply, &QNetworkReply::finished, this,
            [this, reply, body, tries, isTest] { take(reply, body, tries, isTest); });
}

// A refusal is final; silence and faults of the server may pass. A test tells at once.
void WebhookChannel::take(QNetworkReply* reply, const QByteArray& body, int tries, bool isTest)
{
    reply->deleteLater();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool isTaken = reply->error() == QNetworkReply::NoError && status < kFirstError;
    const bool mayPass = status == 0 || status >= kServerError;
    if (!isTaken && mayPass && !isTest && tries < static_cast<int>(std::size(kPauses))) {
        QTimer::singleShot(kPauses[tries], this, [=] { post(body, tries + 1, isTest); });
        return;
    }
    --m_waiting;
    if (isTaken)
        emit delivered();
    else
        emit failed(reasonOf(*reply, status));
}

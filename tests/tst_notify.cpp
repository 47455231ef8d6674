// What is told to whom, and that every channel says so when it fails.

#include "notify/announcer.h"
#include "notify/commandchannel.h"
#include "notify/notifier.h"
#include "notify/webhookchannel.h"
#include "support/privatebus.h"
#include "support/scriptedconnector.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

Condition conditionFrom(LinkState link, OutputSource source, double charge = 100)
{
    UpsReading reading;
    reading.outputSource = source;
    reading.charge = charge;
    return conditionOf(link, &reading);
}

Announcement sample()
{
    Announcement announcement;
    announcement.device = QStringLiteral("Plant $(touch x); \"room\"");
    announcement.condition = conditionFrom(LinkState::Live, OutputSource::Battery);
    announcement.weight = announcement.condition.urgency;
    announcement.since = QDateTime::currentDateTime();
    return announcement;
}

} // namespace

class TestNotify : public QObject
{
    Q_OBJECT

private slots:
    void quietHours();
    void whatIsAnnounced_data();
    void whatIsAnnounced();
    void command();
    void commandFaults();
    void webhook();
    void desktop();
};

void TestNotify::quietHours()
{
    const QuietHours overMidnight{QTime(22, 0), QTime(7, 0)};
    const QuietHours byDay{QTime(12, 0), QTime(13, 0)};
    const struct {
        const char* name;
        QuietHours hours;
        QTime time;
        bool isQuiet;
    } rows[] = {
        {"before midnight", overMidnight, {23, 30}, true},
        {"after midnight", overMidnight, {6, 59}, true},
        {"its end", overMidnight, {7, 0}, false},
        {"its start", byDay, {12, 0}, true},
        {"by day, outside", byDay, {22, 0}, false},
        {"equal ends", {QTime(7, 0), QTime(7, 0)}, {7, 0}, false},
        {"none", {}, {3, 0}, false},
    };
    for (const auto& row : rows)
        QVERIFY2(row.hours.contains(row.time) == row.isQuiet, row.name);
}

void TestNotify::whatIsAnnounced_data()
{
    // One letter a poll: m mains, w load warning (charge 40 %), b battery, l lost, c connecting.
    QTest::addColumn<QString>("polls");
    QTest::addColumn<QString>("announced"); // '.': nothing, '!': trouble, 'r': recovery
    QTest::newRow("first heard of on mains") << "cmmm"
                                             << "....";
    QTest::newRow("found on battery") << "cb"
                                      << ".!";
    QTest::newRow("an outage is told at once, its end when it has held") << "mmbbmm"
                                                                         << "..!..r";
    QTest::newRow("a warning has to hold") << "mmwmwwmwmm"
                                           << ".....!...r";
    QTest::newRow("each outage is told") << "mmbmmbmm"
                                         << "..!.r!.r";
    QTest::newRow("silence has to hold") << "mmlmllmm"
                                         << ".....!.r";
    QTest::newRow("told once") << "mmwwwwww"
                               << "...!....";
}

void TestNotify::whatIsAnnounced()
{
    QFETCH(QString, polls);
    QFETCH(QString, announced);
    const QMap<QChar, Condition> conditions{
        {'m', conditionFrom(LinkState::Live, OutputSource::Utility)},
        {'w', conditionFrom(LinkState::Live, OutputSource::Utility, 40)},
        {'b', conditionFrom(LinkState::Live, OutputSource::Battery)},
        {'l', conditionFrom(LinkState::Lost, OutputSource::Utility)},
        {'c', conditionFrom(LinkState::Connecting, OutputSource::Other)},
    };
    Announcer announcer;
    QString said;
    for (QChar poll : polls) {
        const auto news = announcer.polled(1, "A", conditions.value(poll), QDateTime());
        said += !news ? '.' : news->isRecovery ? 'r' : '!';
    }
    QCOMPARE(said, announced);
}

void TestNotify::command()
{
    QTemporaryDir folder;
    const QString out = folder.filePath("out");
    QFile script(folder.filePath("script"));
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nprintf '%s|%s|%s|%s' \"$1\" \"$UPSDESK_DEVICE\" \"$UPSDESK_URGENCY\" "
                 "\"$UPSDESK_NUT_SECRET\" > \"$2\"\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    qputenv("UPSDESK_NUT_SECRET", "secret");
    CommandChannel channel(QStringLiteral("%1 \"a b; touch y\" %2").arg(script.fileName(), out));
    QSignalSpy delivered(&channel, &NotifyChannel::delivered);
    channel.tell(sample());
    QVERIFY(delivered.wait());
    QFile written(out);
    QVERIFY(written.open(QIODevice::ReadOnly));
    QCOMPARE(written.readAll(), QByteArray("a b; touch y|Plant $(touch x); \"room\"|alarm|"));
    qunsetenv("UPSDESK_NUT_SECRET");
}

void TestNotify::commandFaults()
{
    const struct {
        const char* command;
        const char* reason;
    } rows[] = {
        {"/nonexistent/program", "cannot be started"},
        {"/bin/false", "exit code 1"},
        {"/bin/sleep 60", "longer than"},
    };
    for (const auto& row : rows) {
        CommandChannel channel(row.command, nullptr, 300);
        QSignalSpy failed(&channel, &NotifyChannel::failed);
        channel.tell(sample());
        QVERIFY2(failed.wait(), row.command);
        QVERIFY2(failed.first().first().toString().contains(row.reason), row.command);
    }
}

void TestNotify::webhook()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QByteArray asked;
    QByteArray status("200 OK");
    connect(&server, &QTcpServer::newConnection, this, [&] {
        QTcpSocket* socket = server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, socket, [&, socket] {
            asked += socket->readAll();
            if (!asked.endsWith('}'))
                return;
            socket->write("HTTP/1.1 " + status +
                          "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
            socket->disconnectFromHost();
        });
    });
    WebhookChannel channel(
        QStringLiteral("http://127.0.0.1:%1/hook?token=hidden").arg(server.serverPort()));
    QSignalSpy delivered(&channel, &NotifyChannel::delivered);
    QSignalSpy failed(&channel, &NotifyChannel::failed);
    channel.tell(sample());
    QVERIFY(delivered.wait());
    const auto body = QJsonDocument::fromJson(asked.mid(asked.indexOf("\r\n\r\n") + 4)).object();
    QCOMPARE(body.value("device").toString(), sample().device);
    QCOMPARE(body.value("urgency").toString(), QStringLiteral("alarm"));

    asked.clear();
    status = "302 Found";
    channel.tell(sample());
    QVERIFY(failed.wait());
    QVERIFY(failed.first().first().toString().contains("302"));
    QVERIFY(!failed.first().first().toString().contains("hidden"));
}

void TestNotify::desktop()
{
    PrivateBus bus;
    QVERIFY2(bus.isRunning(), "dbus-daemon did not start");
    ScriptedConnector* connector = nullptr;
    Fleet fleet([&](const DeviceSettings&) {
        auto made = std::make_unique<ScriptedConnector>();
        connector = made.get();
        return made;
    });
    NotifySettings settings;
    settings.quietFrom = QStringLiteral("22:00");
    settings.quietTo = QStringLiteral("07:00");
    Notifier notifier(fleet, settings, bus.connection());
    const auto trial = Notifier::makeChannel(Notifier::Desktop, settings, bus.connection());
    QSignalSpy failed(trial.get(), &NotifyChannel::failed);
    trial->tell(Notifier::trial()); // nobody offers the service yet
    QVERIFY(failed.wait());

    NotificationService service(bus);
    QTime now(12, 0);
    notifier.setWallClock([&now] { return now; });
    DeviceSettings device = {};
    device.name = QStringLiteral("Plant <b>room</b>");
    fleet.add(device);
    const auto poll = [&](OutputSource source, const QString& alarm) {
        PollResult result;
        result.state = LinkState::Live;
        result.reading.outputSource = source;
        if (!alarm.isEmpty())
            result.reading.alarmTexts << alarm;
        emit connector->polled(result);
    };
    poll(OutputSource::Battery, QStringLiteral("<img src=x> & fan"));
    QTRY_COMPARE(service.count(), 1);
    QCOMPARE(service.summary(), QStringLiteral("Plant <b>room</b>: On battery"));
    QVERIFY(service.body().contains("&lt;img src=x&gt; &amp; fan"));
    QCOMPARE(service.hints().value("suppress-sound").toBool(), true);

    now = QTime(23, 0); // what is not critical waits for the morning, what is critical does not
    poll(OutputSource::Utility, {});
    poll(OutputSource::Utility, {});
    poll(OutputSource::None, {});
    QTRY_COMPARE(service.count(), 2);
    QCOMPARE(service.summary(), QStringLiteral("Plant <b>room</b>: Output off"));
    QCOMPARE(service.replaced(), service.firstId()); // one notification a device
}

QTEST_GUILESS_MAIN(TestNotify)
#include "tst_notify.moc"

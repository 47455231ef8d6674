// The page that Prometheus reads: as it asks for it, and without old values.

#include "metrics/metricsserver.h"
#include "support/scriptedconnector.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSignalSpy>
#include <QtTest>

class TestMetrics : public QObject
{
    Q_OBJECT

private slots:
    void page();
    void addresses();

private:
    static QString get(int port);
};

QString TestMetrics::get(int port)
{
    QNetworkAccessManager network;
    QNetworkReply* reply =
        network.get(QNetworkRequest(QStringLiteral("http://127.0.0.1:%1/metrics").arg(port)));
    QSignalSpy finished(reply, &QNetworkReply::finished);
    return finished.wait() ? QString::fromUtf8(reply->readAll()) : QString();
}

void TestMetrics::page()
{
    ScriptedConnector* connector = nullptr;
    Fleet fleet([&](const DeviceSettings&) {
        auto made = std::make_unique<ScriptedConnector>();
        connector = made.get();
        return made;
    });
    MetricsServer server(fleet);
    DeviceSettings settings;
    settings.name = QStringLiteral("a \"b\"\n\\c");
    fleet.add(settings);
    // Port 0 is refused from a configuration, so one that is free has to be found.
    int port = 0;
    for (int trial = 20000; trial < 20100 && port == 0; ++trial)
        if (server.listen(QString::number(trial)).isEmpty())
            port = trial;
    QVERIFY(port != 0);
    QCOMPARE(server.port(), port);
    QVERIFY(!MetricsServer(fleet).listen(QString::number(port)).isEmpty()); // taken

    PollResult result;
    result.state = LinkState::Live;
    result.reading.outputSource = OutputSource::Battery;
    result.reading.charge = 87;
    result.reading.output.load = {Value(50), Value(), Value(25)};
    result.reading.alarms.insert(Alarm::OnBattery);
    emit connector->polled(result);
    const QString live = get(port);
    const QString device = QStringLiteral("device=\"a \\\"b\\\"\\n\\\\c\"");
    const QStringList lines{
        QStringLiteral("ups_up{%1} 1").arg(device),
        QStringLiteral("ups_on_battery{%1} 1").arg(device),
        QStringLiteral("ups_battery_charge_ratio{%1} 0.87").arg(device),
        QStringLiteral("ups_load_ratio{%1,phase=\"A\"} 0.5").arg(device),
        QStringLiteral("ups_load_ratio{%1,phase=\"C\"} 0.25").arg(device),
        QStringLiteral("ups_alarm{%1,alarm=\"on_battery\"} 1").arg(device),
    };
    for (const QString& line : lines)
        QVERIFY2(live.contains(line), qPrintable(line + "\n" + live));
    QVERIFY(!live.contains(QStringLiteral("phase=\"B\"")));

    QProcess promtool;
    promtool.start(QStringLiteral("promtool"),
                   {QStringLiteral("check"), QStringLiteral("metrics")});
    QVERIFY(promtool.waitForStarted());
    promtool.write(live.toUtf8());
    promtool.closeWriteChannel();
    QVERIFY(promtool.waitForFinished());
    QVERIFY2(promtool.exitCode() == 0, promtool.readAllStandardError());

    result.state = LinkState::Stale;
    emit connector->polled(result);
    const QString stale = get(port);
    QVERIFY(stale.contains(QStringLiteral("ups_up{%1} 0").arg(device)));
    QVERIFY(stale.contains(QStringLiteral("ups_reading_age_seconds{")));
    QVERIFY(!stale.contains(QStringLiteral("ups_battery_charge_ratio{")));
    fleet.remove(0);
    QVERIFY(!get(port).contains(QStringLiteral("ups_up{")));
}

void TestMetrics::addresses()
{
    const struct {
        const char* address;
        bool isFine;
    } rows[] = {
        {"127.0.0.1:9199", true}, {"9199", true},
        {"[::1]:9199", true},     {"0.0.0.0:9199", true},
        {"host:9199", false},     {"127.0.0.1", false},
        {"127.0.0.1:0", false},   {"127.0.0.1:99999", false},
    };
    for (const auto& row : rows)
        QVERIFY2(MetricsServer::addressFault(row.address).isEmpty() == row.isFine, row.address);
}

QTEST_GUILESS_MAIN(TestMetrics)
#include "tst_metrics.moc"

// Thousands of malformed answers from the network: every poll ends, and the device is live again as
// soon as it answers well.

#include "connectors/factory/connectorfactory.h"
#include "support/hostiledevice.h"

#include <QSignalSpy>
#include <QTest>

class TestHostileDevice : public QObject
{
    Q_OBJECT

private slots:
    void isLiveAgain_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::newRow("NUT") << int(DeviceAddress::Scheme::Nut);
        QTest::newRow("SNMP") << int(DeviceAddress::Scheme::Snmp);
    }
    void isLiveAgain()
    {
        QFETCH(int, scheme);
        constexpr int kAnswers = 5000;
        constexpr int kPatience = 20000; // ms, for one poll
        HostileDevice device(static_cast<DeviceAddress::Scheme>(scheme));
        const auto connector = makeConnector(device.settings());
        QSignalSpy polled(connector.get(), &Connector::polled);
        const auto poll = [&] {
            polled.clear();
            connector->poll();
            return polled.wait(kPatience) && polled.size() == 1;
        };
        while (device.spoilt() < kAnswers)
            QVERIFY(poll());
        device.behave();
        QTRY_VERIFY_WITH_TIMEOUT(poll() && polled.first().first().value<PollResult>().state ==
                                               LinkState::Live,
                                 kPatience);
    }
};

QTEST_GUILESS_MAIN(TestHostileDevice)
#include "tst_hostiledevice.moc"

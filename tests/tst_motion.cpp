// Whether things move: as the operator has chosen, else as the desktop's settings portal says, now
// and later.

#include "support/privatebus.h"
#include "window/deskstyle.h"
#include "window/motion.h"

#include <QtTest>

namespace {

// The portal of a desktop whose animations are on or off.
class SettingsPortal : public QDBusVirtualObject
{
    Q_OBJECT

public:
    SettingsPortal(const PrivateBus& bus, bool animates)
        : m_bus(QDBusConnection::connectToBus(bus.address(), "service"))
        , m_animates(animates)
    {
        m_bus.registerVirtualObject(kPath, this);
        m_bus.registerService("org.freedesktop.portal.Desktop");
    }
    ~SettingsPortal() override { QDBusConnection::disconnectFromBus("service"); }

    void turn(const QString& key, const QVariant& value)
    {
        QDBusMessage signal = QDBusMessage::createSignal(kPath, kInterface, "SettingChanged");
        signal << "org.gnome.desktop.interface" << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(signal);
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() != "Read")
            return false;
        if (message.arguments().value(1) != "enable-animations")
            return connection.send(message.createErrorReply("org.test", "unknown"));
        const QVariant value = QVariant::fromValue(QDBusVariant(m_animates));
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(value))));
    }

private:
    static constexpr char kPath[] = "/org/freedesktop/portal/desktop";
    static constexpr char kInterface[] = "org.freedesktop.portal.Settings";

    QDBusConnection m_bus;
    bool m_animates;
};

bool styleMoves()
{
    return DeskStyle().styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, nullptr, nullptr);
}

} // namespace

class TestMotion : public QObject
{
    Q_OBJECT

private slots:
    void followsTheDesktop();
    void theOperatorComesFirst();
};

void TestMotion::followsTheDesktop()
{
    const PrivateBus bus;
    QVERIFY(bus.isRunning());
    SettingsPortal portal(bus, false);
    Motion motion(bus.connection());
    QVERIFY(motion.moves()); // until the desktop has answered
    QTRY_VERIFY(!motion.moves());
    QVERIFY(!styleMoves());
    portal.turn("enable-animations", true);
    QTRY_VERIFY(motion.moves());
    QVERIFY(styleMoves());
    portal.turn("font-name", false); // is none of its business
    portal.turn("enable-animations", false);
    QTRY_VERIFY(!motion.moves());
}

void TestMotion::theOperatorComesFirst()
{
    const PrivateBus bus;
    QVERIFY(bus.isRunning());
    SettingsPortal portal(bus, true);
    Motion motion(bus.connection());
    motion.choose(MotionChoice::Reduced);
    QVERIFY(!styleMoves());
    portal.turn("enable-animations", true);
    QTest::qWait(50);
    QVERIFY(!styleMoves());
    motion.choose(MotionChoice::Full);
    QVERIFY(styleMoves());
}

QTEST_MAIN(TestMotion)
#include "tst_motion.moc"

#ifndef PRIVATEBUS_H
#define PRIVATEBUS_H

// A message bus of the test's own, and a service for notifications on it that keeps what it is
// told.

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QStringList>
#include <QVariantMap>

class PrivateBus
{
public:
    PrivateBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address")});
        if (m_daemon.waitForReadyRead(10000))
            m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("client"));
        m_daemon.kill();
        m_daemon.waitForFinished();
    }
    bool isRunning() const { return !m_address.isEmpty(); }
    QString address() const { return m_address; }
    QDBusConnection connection() const
    {
        return QDBusConnection::connectToBus(m_address, QStringLiteral("client"));
    }

private:
    QProcess m_daemon;
    QString m_address;
};

class NotificationService : public QDBusVirtualObject
{
    Q_OBJECT

public:
    explicit NotificationService(const PrivateBus& bus)
        : m_bus(QDBusConnection::connectToBus(bus.address(), QStringLiteral("service")))
    {
        m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop/Notifications"), this);
        m_bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }
    ~NotificationService() override
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("service"));
    }

    int count() const { return m_count; }
    quint32 firstId() const { return 1; }
    quint32 replaced() const { return m_last.value(1).toUInt(); }
    QString summary() const { return m_last.value(3).toString(); }
    QString body() const { return m_last.value(4).toString(); }
    QVariantMap hints() const { return qdbus_cast<QVariantMap>(m_last.value(6)); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() != QLatin1String("Notify"))
            return false;
        m_last = message.arguments();
        ++m_count;
        return connection.send(message.createReply(static_cast<quint32>(firstId())));
    }

private:
    QDBusConnection m_bus;
    QVariantList m_last;
    int m_count = 0;
};

#endif // PRIVATEBUS_H

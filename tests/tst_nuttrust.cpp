// What is said to a NUT server over links of every kind: plain, encrypted, trusted, and changed by
// somebody in between.

#include "connectors/nut/nutconnector.h"

#include "support/lineserver.h"
#include "support/nutanswers.h"
#include "support/testcertificate.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr int kPatience = 15000; // ms; far beyond any limit in here
constexpr char kOffer[] = "OK STARTTLS\n";

PollResult pollOnce(const DeviceSettings& settings)
{
    NutConnector connector(settings);
    QSignalSpy polled(&connector, &Connector::polled);
    connector.poll();
    return polled.wait(kPatience) ? polled.at(0).at(0).value<PollResult>() : PollResult();
}

CommandResult testOnce(const DeviceSettings& settings)
{
    NutConnector connector(settings);
    QSignalSpy finished(&connector, &Connector::commandFinished);
    connector.send(UpsCommand());
    return finished.wait(kPatience) ? finished.at(0).at(0).value<CommandResult>() : CommandResult();
}

// An orderly server that offers encryption while it has a certificate.
struct Server : LineServer {
    explicit Server(const TestCertificate* shown)
        : LineServer([this](const QByteArray& line) {
            return line == "STARTTLS" && offers ? QByteArray(kOffer) : orderlyNutAnswer(line);
        })
        , offers(shown)
    {
        if (shown) {
            certificate = shown->certificate;
            key = shown->key;
        }
    }
    DeviceSettings settings(TlsUse tls, const QString& user = "anna") const
    {
        DeviceSettings settings;
        settings.address =
            *parseDeviceAddress(QStringLiteral("nut://127.0.0.1:%1/unit").arg(serverPort()))
                 .address;
        settings.timeout = 5;
        settings.user = user;
        settings.secret = "secret";
        settings.tls = tls;
        return settings;
    }

    bool offers;
};

struct Row {
    const char* title;
    const TestCertificate* shown;
    TlsUse tls;
    QString caFile, fingerprint;
    LinkState state;
    const char* says; // the reading's notes or the message; empty: nothing, as on this machine
    CommandOutcome outcome;
};

} // namespace

class TestNutTrust : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(QSslSocket::supportsSsl());
        QVERIFY2(!m_good.key.isNull() && !m_misnamed.key.isNull(), "is openssl installed?");
    }

    void links()
    {
        using T = TlsUse;
        using O = CommandOutcome;
        const TestCertificate* none = nullptr;
        const QString pin = m_good.fingerprint();
        const QString otherPin = m_misnamed.fingerprint();
        const QString ca = m_good.path();
        const Row rows[] = {
            {"plain", none, T::Preferred, "", "", LinkState::Live, "", O::Refused},
            {"plain, pinned", none, T::Preferred, "", pin, LinkState::Refused, "no encryption",
             O::Refused},
            {"plain, off", none, T::Off, "", "", LinkState::Live, "", O::Done},
            {"plain, required", none, T::Required, ca, "", LinkState::Refused, "no encryption",
             O::Refused},
            {"off, though offered", &m_good, T::Off, "", "", LinkState::Live, "", O::Done},
            {"signed by itself", &m_good, T::Preferred, "", "", LinkState::Live, "not trusted",
             O::Refused},
            {"signed by itself, required", &m_good, T::Required, "", "", LinkState::Refused,
             "cannot be trusted", O::Refused},
            {"authority", &m_good, T::Required, ca, "", LinkState::Live, "", O::Done},
            {"authority, other name", &m_misnamed, T::Required, m_misnamed.path(), "",
             LinkState::Refused, "cannot be trusted", O::Refused},
            {"pinned", &m_good, T::Required, "", pin.toUpper().replace("SHA256", "sha256"),
             LinkState::Live, "", O::Done},
            {"pinned, other name", &m_misnamed, T::Preferred, "", otherPin, LinkState::Live, "",
             O::Done},
            {"another pinned", &m_good, T::Preferred, ca, otherPin, LinkState::Refused,
             "cannot be trusted", O::Refused},
            {"another pinned, required", &m_good, T::Required, ca, otherPin, LinkState::Refused,
             "cannot be trusted", O::Refused},
        };
        for (const Row& row : rows) {
            tryRow(row);
            if (QTest::currentTestFailed())
                return;
        }
    }

    // A server that has offered encryption cannot take that back unnoticed.
    void silenceAboutEncryptionIsRefused()
    {
        Server server(&m_good);
        QCOMPARE(pollOnce(server.settings(TlsUse::Preferred)).state, LinkState::Live);
        server.offers = false;
        server.lines.clear();
        const PollResult result = pollOnce(server.settings(TlsUse::Preferred));
        QCOMPARE(result.state, LinkState::Refused);
        QVERIFY2(result.message.contains("offered encryption before"), qPrintable(result.message));
        QCOMPARE(testOnce(server.settings(TlsUse::Preferred)).outcome, CommandOutcome::Refused);
        QCOMPARE(server.count("STARTTLS"), server.lines.size()); // nothing else was said
        QCOMPARE(pollOnce(server.settings(TlsUse::Off)).state, LinkState::Live); // said so
    }

    // An order never goes out under another's name.
    void accountsShareNoLogIn()
    {
        Server server(nullptr);
        for (const char* user : {"anna", "bert", "anna"}) {
            QCOMPARE(testOnce(server.settings(TlsUse::Off, user)).outcome, CommandOutcome::Done);
            const QByteArray name = QByteArray("USERNAME \"") + user + '"';
            const int order = server.lines.lastIndexOf("INSTCMD \"unit\" test.battery.start.quick");
            QVERIFY(order > 0);
            for (int i = 0; i < server.lines.size(); ++i)
                if (server.lineOf.at(i) == server.lineOf.at(order) &&
                    server.lines.at(i).startsWith("USERNAME"))
                    QCOMPARE(server.lines.at(i), name);
        }
    }

private:
    void tryRow(const Row& row)
    {
        Server server(row.shown);
        DeviceSettings settings = server.settings(row.tls);
        settings.caFile = row.caFile;
        settings.fingerprint = row.fingerprint;
        // One that trusts the same server otherwise shares no link with it.
        const NutConnector other(
            server.settings(row.tls == TlsUse::Off ? TlsUse::Preferred : TlsUse::Off));

        const PollResult poll = pollOnce(settings);
        QVERIFY2(poll.state == row.state,
                 qPrintable(QString("%1: %2").arg(row.title, poll.message)));
        const QString said = poll.message + poll.reading.notes.join(' ');
        QVERIFY2(said.contains(row.says) && said.isEmpty() == !row.says[0],
                 qPrintable(QString("%1: %2").arg(row.title, said)));
        QCOMPARE(server.count("LIST VAR"), row.state == LinkState::Live ? 1 : 0);
        QCOMPARE(poll.security.fingerprint,
                 row.shown && row.tls != TlsUse::Off ? row.shown->fingerprint() : QString());

        const CommandResult command = testOnce(settings);
        QVERIFY2(command.outcome == row.outcome,
                 qPrintable(QString("%1: %2").arg(row.title, command.message)));
        const bool isDone = row.outcome == CommandOutcome::Done;
        QCOMPARE(server.count("PASSWORD"), isDone ? 1 : 0);
        QCOMPARE(server.count("INSTCMD"), isDone ? 1 : 0);
        QVERIFY2(isDone || command.message.contains("tls") ||
                     command.message.contains("certificate"),
                 qPrintable(command.message));
    }

    TestCertificate m_good{"IP:127.0.0.1"};
    TestCertificate m_misnamed{"DNS:ups.example"};
};

QTEST_GUILESS_MAIN(TestNutTrust)
#include "tst_nuttrust.moc"

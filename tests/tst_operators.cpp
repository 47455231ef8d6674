// Passwords, operators and the session at the window. Touches a temporary folder.

#include "config/addoperator.h"
#include "config/deskconfig.h"
#include "config/operators.h"
#include "config/operatorsession.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

SecretText secret(const char* text)
{
    return SecretText(QByteArray(text));
}

OperatorAccount account(const QString& name, int level, const char* password)
{
    return {name, level, hashPassword(secret(password), HashLimits::minimal())};
}

Operators twoOperators()
{
    return Operators({account("anna", 1, "anna's word"), account("bert", 9, "bert's word")});
}

// A session whose wall clock the test moves, as a machine that sleeps does.
class SessionProbe : public OperatorSession
{
public:
    qint64 slept = 0; // ms

protected:
    qint64 wallClock() const override { return OperatorSession::wallClock() + slept; }
};

} // namespace

class TestOperators : public QObject
{
    Q_OBJECT

private slots:
    void hashes_data();
    void hashes();
    void hashesDiffer();
    void verify_data();
    void verify();
    void nobodyToVerify();
    void add();
    void addRefused_data();
    void addRefused();
    void sessionLogsInAndOut();
    void lastAttemptCounts();
    void tableChanges();
    void idleTime();
    void sleepCountsAsIdle();
    void sessionGoesDuringACheck();
};

void TestOperators::hashes_data()
{
    QTest::addColumn<QString>("hash");
    QTest::addColumn<bool>("valid");
    const QString good = impossibleHash(HashLimits::minimal());
    const auto with = [good](const char* from, const char* to) {
        return QString(good).replace(from, to);
    };
    QTest::newRow("decoy") << good << true;
    QTest::newRow("standard cost") << impossibleHash() << true;
    QTest::newRow("hashed") << hashPassword(secret("x"), HashLimits::minimal()) << true;
    QTest::newRow("other algorithm") << with("argon2id", "argon2i") << false;
    QTest::newRow("too much memory") << with("m=8", "m=1048577") << false;
    QTest::newRow("number too long") << with("m=8", "m=18446744073709551617") << false;
    QTest::newRow("too many passes") << with("t=1", "t=21") << false;
    QTest::newRow("no lane") << with("p=1", "p=0") << false;
    QTest::newRow("cut off") << good.chopped(30) << false;
    QTest::newRow("line break behind it") << good + '\n' << false;
    QTest::newRow("very long") << good + QString(200, 'A') << false;
    QTest::newRow("empty") << "" << false;
}

void TestOperators::hashes()
{
    QFETCH(QString, hash);
    QFETCH(bool, valid);
    QCOMPARE(isPasswordHash(hash), valid);
    if (!valid)
        QVERIFY(!verifyPassword(hash, secret("x")));
}

void TestOperators::hashesDiffer()
{
    const QString first = hashPassword(secret("x"), HashLimits::minimal());
    QVERIFY(first != hashPassword(secret("x"), HashLimits::minimal()));
    QVERIFY(first.contains("$m=8,t=1,"));
    // The decoy is checked at full cost like any other, so it has to be well-formed to libsodium.
    const QString standard = hashPassword(secret("x"));
    QVERIFY(impossibleHash().startsWith(standard.left(standard.indexOf("p=1$"))));
    QCOMPARE(impossibleHash().size(), standard.size());
}

void TestOperators::verify_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<int>("level"); // -1: none
    QTest::newRow("anna") << "anna"
                          << "anna's word" << 1;
    QTest::newRow("bert") << "bert"
                          << "bert's word" << 9;
    QTest::newRow("wrong password") << "anna"
                                    << "anna's Word" << -1;
    QTest::newRow("empty password") << "anna"
                                    << "" << -1;
    QTest::newRow("password of another") << "bert"
                                         << "anna's word" << -1;
    QTest::newRow("unknown name, password of the decoy's owner") << "eve"
                                                                 << "anna's word" << -1;
    QTest::newRow("name in capitals") << "Anna"
                                      << "anna's word" << -1;
    QTest::newRow("no name") << ""
                             << "anna's word" << -1;
}

void TestOperators::verify()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    QFETCH(int, level);
    QCOMPARE(twoOperators().verify(name, SecretText(password)).value_or(-1), level);
}

void TestOperators::nobodyToVerify()
{
    QVERIFY(!Operators({}, HashLimits::minimal()).verify("anna", secret("")));
}

void TestOperators::add()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk/upsdesk.conf");
    const auto limits = HashLimits::minimal();
    QCOMPARE(addOperator(path, "anna", 1, secret("first word"), limits), QString());
    QCOMPARE(
        addOperator(path, "Bert \"B\" # 1", 9, SecretText(QString("Gr\u00fc\u00dfe...")), limits),
        QString());
    QCOMPARE(addOperator(path, "anna", 2, secret("second word"), limits), QString());

    const DeskConfig config = DeskConfig::load(path);
    QVERIFY(config.faults().isEmpty());
    const Operators operators(config.operators());
    QCOMPARE(operators.accounts().size(), 2);
    QVERIFY(!operators.verify("anna", secret("first word")));
    QCOMPARE(operators.verify("anna", secret("second word")).value_or(-1), 2);
    QCOMPARE(
        operators.verify("Bert \"B\" # 1", SecretText(QString("Gr\u00fc\u00dfe..."))).value_or(-1),
        9);
    QVERIFY(!config.document().toBytes().contains("word"));
}

void TestOperators::addRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("level");
    QTest::addColumn<QByteArray>("password");
    QTest::newRow("no name") << "" << 1 << QByteArray("long enough");
    QTest::newRow("control character") << "a\nb" << 1 << QByteArray("long enough");
    QTest::newRow("level below 0") << "a" << -1 << QByteArray("long enough");
    QTest::newRow("level above 9") << "a" << 10 << QByteArray("long enough");
    QTest::newRow("7 characters") << "a" << 1 << QByteArray("1234567");
    QTest::newRow("8 bytes, 4 characters")
        << "a" << 1 << QByteArray("\xc3\xbc\xc3\xbc\xc3\xbc\xc3\xbc");
}

void TestOperators::addRefused()
{
    QFETCH(QString, name);
    QFETCH(int, level);
    QFETCH(QByteArray, password);
    QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk.conf");
    QVERIFY(!addOperator(path, name, level, SecretText(password), HashLimits::minimal()).isEmpty());
    QVERIFY(!QFile::exists(path));
}

void TestOperators::sessionLogsInAndOut()
{
    OperatorSession session;
    session.setOperators(twoOperators());
    QSignalSpy changed(&session, &OperatorSession::changed);
    QSignalSpy refused(&session, &OperatorSession::refused);
    QCOMPARE(session.level(), 0);

    session.logIn("bert", secret("bert's word"));
    QVERIFY(session.isChecking() && !session.isLoggedIn()); // the answer comes later
    QVERIFY(changed.wait());
    QCOMPARE(session.name(), QString("bert"));
    QCOMPARE(session.level(), 9);

    session.logIn("anna", secret("wrong"));
    QVERIFY(refused.wait());
    const QString wrongPassword = refused.at(0).at(0).toString();
    QCOMPARE(session.name(), QString("bert"));
    session.logIn("eve", secret("wrong"));
    QVERIFY(refused.wait());
    QCOMPARE(refused.at(1).at(0).toString(), wrongPassword); // tells no names

    session.logOut();
    QCOMPARE(session.level(), 0);
    QCOMPARE(session.name(), QString());
    session.logOut();
    QCOMPARE(changed.count(), 2);
}

void TestOperators::lastAttemptCounts()
{
    OperatorSession session;
    session.setOperators(twoOperators());
    QSignalSpy changed(&session, &OperatorSession::changed);
    session.logIn("bert", secret("bert's word"));
    session.logIn("anna", secret("anna's word"));
    QVERIFY(changed.wait());
    QCOMPARE(session.name(), QString("anna"));

    session.logIn("bert", secret("bert's word"));
    session.logOut(); // ends the check as well
    session.logIn("eve", secret("wrong"));
    QVERIFY(QSignalSpy(&session, &OperatorSession::refused).wait());
    QVERIFY(!session.isLoggedIn());
}

void TestOperators::tableChanges()
{
    OperatorSession session;
    session.setOperators(twoOperators());
    QSignalSpy changed(&session, &OperatorSession::changed);
    session.logIn("anna", secret("anna's word"));
    QVERIFY(changed.wait());
    session.setOperators(Operators({account("anna", 5, "other word")}));
    QCOMPARE(session.level(), 5);
    session.setOperators(Operators({account("bert", 5, "other word")}));
    QVERIFY(!session.isLoggedIn());
    QCOMPARE(changed.count(), 3);
}

void TestOperators::idleTime()
{
    OperatorSession session;
    session.setOperators(twoOperators());
    session.setIdleTime(50);
    QSignalSpy changed(&session, &OperatorSession::changed);
    session.logIn("anna", secret("anna's word"));
    QVERIFY(changed.wait());
    QVERIFY(session.isLoggedIn());
    QVERIFY(changed.wait());
    QVERIFY(!session.isLoggedIn());
    QCOMPARE(session.level(), 0);
}

void TestOperators::sleepCountsAsIdle()
{
    SessionProbe session;
    session.setOperators(twoOperators());
    QSignalSpy changed(&session, &OperatorSession::changed);
    session.logIn("anna", secret("anna's word"));
    QVERIFY(changed.wait());
    session.slept += OperatorSession::kDefaultIdleTime / 2;
    session.activity();
    session.slept += OperatorSession::kDefaultIdleTime / 2;
    session.activity();
    QVERIFY(session.isLoggedIn());
    session.slept += OperatorSession::kDefaultIdleTime;
    session.activity();
    QVERIFY(!session.isLoggedIn());
}

void TestOperators::sessionGoesDuringACheck()
{
    auto session = std::make_unique<OperatorSession>();
    session->setOperators(twoOperators());
    session->logIn("anna", secret("anna's word"));
    session.reset();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

QTEST_GUILESS_MAIN(TestOperators)
#include "tst_operators.moc"

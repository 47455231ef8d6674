// Passwords, operators and the session at the window. Touches a temporary folder.

#include "config/addoperator.h"
#include "config/deskconfig.h"
#include "config/operators.h"
#include "config/operatorsession.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

SecretText secret(const char* text)
{
    return SecretText(QByteArray(text));
}

OperatorAccount account(const QString& name, int level, const char* password)
{
    return {name, level, hashPassword(secret(password), HashLimits::minimal())};
}

// A session of two operators, whose wall clock the test moves, as a machine that sleeps does.
class SessionProbe : public OperatorSession
{
public:
    SessionProbe() { setOperators(Operators({account("anna", 1, "a"), account("bert", 9, "b")})); }
    bool enter(const QString& name, const char* password)
    {
        QSignalSpy changes(this, &OperatorSession::changed);
        logIn(name, secret(password));
        return changes.wait() && this->name() == name;
    }

    qint64 slept = 0; // ms
    QSignalSpy changes{this, &OperatorSession::changed};
    QSignalSpy refusals{this, &OperatorSession::refused};

protected:
    qint64 wallClock() const override { return OperatorSession::wallClock() + slept; }
};

} // namespace

class TestOperators : public QObject
{
    Q_OBJECT

private slots:
    void hashes()
    {
        const auto limits = HashLimits::minimal();
        const QString good = hashPassword(secret("x"), limits);
        QVERIFY(good != hashPassword(secret("x"), limits) && good.contains("$m=8,t=1,"));
        QVERIFY(isPasswordHash(good) && isPasswordHash(impossibleHash()));
        const auto with = [good](const char* from, const char* to) {
            return QString(good).replace(from, to);
        };
        for (const QString& bad :
             {with("argon2id", "argon2i"), with("m=8", "m=1048577"),
              with("m=8", "m=18446744073709551617"), with("t=1", "t=21"), with("p=1", "p=0"),
              good.chopped(30), good + '\n', good + QString(200, 'A'), QString()}) {
            QVERIFY2(!isPasswordHash(bad), qPrintable(bad));
            QVERIFY(!verifyPassword(bad, secret("x")));
        }
        // The decoy is checked at full cost like any other: it has to be well-formed to libsodium.
        const QString standard = hashPassword(secret("x"));
        QVERIFY(impossibleHash().startsWith(standard.left(standard.indexOf("p=1$"))));
        QCOMPARE(impossibleHash().size(), standard.size());
    }

    void verify()
    {
        const struct {
            const char* name;
            const char* password;
            int level; // -1: none
        } rows[] = {
            {"anna", "a", 1}, {"bert", "b", 9},  {"anna", "A", -1},
            {"anna", "", -1}, {"bert", "a", -1}, {"Anna", "a", -1},
            {"", "a", -1},    {"eve", "a", -1}, // the password of the decoy
        };
        const Operators operators({account("anna", 1, "a"), account("bert", 9, "b")});
        for (const auto& row : rows)
            QCOMPARE(operators.verify(row.name, secret(row.password)).value_or(-1), row.level);
        QVERIFY(!Operators({}, HashLimits::minimal()).verify("anna", secret("")));
    }

    void add()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("upsdesk/upsdesk.conf");
        const auto add = [&](const QString& name, int level, const char* password) {
            return addOperator(path, name, level, secret(password), HashLimits::minimal());
        };
        QVERIFY(!add("", 1, "long enough").isEmpty());
        QVERIFY(!add("a\nb", 1, "long enough").isEmpty());
        QVERIFY(!add("a", -1, "long enough").isEmpty());
        QVERIFY(!add("a", 10, "long enough").isEmpty());
        QVERIFY(!add("a", 1, "\xc3\xbc\xc3\xbc\xc3\xbc\xc3\xbc").isEmpty()); // 4 characters
        QVERIFY(!QFile::exists(path));

        QCOMPARE(add("anna", 1, "first word"), QString());
        QCOMPARE(add("Bert \"B\" # 1", 9,
                     "Gr\xc3\xbc\xc3\x9f"
                     "e..."),
                 QString());
        QCOMPARE(add("anna", 2, "second word"), QString());
        const DeskConfig config = DeskConfig::load(path);
        QVERIFY(config.faults().isEmpty());
        const Operators operators(config.operators());
        QCOMPARE(operators.accounts().size(), 2);
        QVERIFY(!operators.verify("anna", secret("first word")));
        QCOMPARE(operators.verify("anna", secret("second word")).value_or(-1), 2);
        const SecretText bert(QString("Gr\u00fc\u00dfe..."));
        QCOMPARE(operators.verify("Bert \"B\" # 1", bert).value_or(-1), 9);
        QVERIFY(!config.document().toBytes().contains("word"));
    }

    void sessionLogsInAndOut()
    {
        SessionProbe session;
        session.logIn("bert", secret("b"));
        QVERIFY(session.isChecking() && !session.isLoggedIn()); // the answer comes later
        QVERIFY(session.changes.wait());
        QCOMPARE(session.name(), QString("bert"));
        QCOMPARE(session.level(), 9);

        session.logIn("anna", secret("wrong"));
        QVERIFY(session.refusals.wait());
        QCOMPARE(session.name(), QString("bert"));
        session.logIn("eve", secret("wrong"));
        QVERIFY(session.refusals.wait());
        QCOMPARE(session.refusals.at(1), session.refusals.at(0)); // tells no names

        session.logOut();
        session.logOut();
        QCOMPARE(session.level(), 0);
        QCOMPARE(session.changes.count(), 2);
    }

    void lastAttemptCounts()
    {
        SessionProbe session;
        session.logIn("bert", secret("b"));
        QVERIFY(session.enter("anna", "a"));
        session.logIn("bert", secret("b"));
        session.logOut(); // ends the check as well
        session.logIn("eve", secret("wrong"));
        QVERIFY(session.refusals.wait());
        QVERIFY(!session.isLoggedIn());
    }

    void tableChanges()
    {
        SessionProbe session;
        QVERIFY(session.enter("anna", "a"));
        session.setOperators(Operators({account("anna", 5, "other word")}));
        QCOMPARE(session.level(), 5);
        session.setOperators(Operators({account("bert", 5, "other word")}));
        QVERIFY(!session.isLoggedIn());
        QCOMPARE(session.changes.count(), 3);
    }

    void idleTime()
    {
        SessionProbe session;
        QVERIFY(session.enter("anna", "a"));
        for (int i = 0; i < 2; ++i) { // sleep counts, too
            session.slept += OperatorSession::kDefaultIdleTime / 2;
            session.activity();
        }
        QVERIFY(session.isLoggedIn());
        session.slept += OperatorSession::kDefaultIdleTime;
        session.activity();
        QVERIFY(!session.isLoggedIn());

        session.setIdleTime(50);
        QVERIFY(session.enter("anna", "a"));
        QVERIFY(session.changes.wait());
        QVERIFY(!session.isLoggedIn());
    }

    void sessionGoesDuringACheck()
    {
        auto session = std::make_unique<SessionProbe>();
        session->logIn("anna", secret("a"));
        session.reset();
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
    }
};

QTEST_GUILESS_MAIN(TestOperators)
#include "tst_operators.moc"

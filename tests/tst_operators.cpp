// Passwords, operators and the session at the window. Touches a temporary folder.

#include "config/deskconfig.h"
#include "operators/addoperator.h"
#include "operators/operators.h"
#include "operators/operatorsession.h"

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

// A session of two operators, whose clock the test moves, as a machine that sleeps does.
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
    qint64 clockMs() const override { return OperatorSession::clockMs() + slept; }
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
        for (const QString& bad :
             {QString(good).replace("m=8", "m=1048577"), good.chopped(30), QString()}) {
            QVERIFY2(!isPasswordHash(bad), qPrintable(bad));
            QVERIFY(!verifyPassword(bad, secret("x")));
        }
    }

    void verify()
    {
        const struct {
            const char* name;
            const char* password;
            int level; // -1: none
        } rows[] = {
            {"anna", "a", 1},  {"bert", "b", 9},  {"anna", "", -1},
            {"bert", "a", -1}, {"Anna", "a", -1}, {"eve", "a", -1},
        };
        const Operators operators({account("anna", 1, "a"), account("bert", 9, "b")});
        for (const auto& row : rows)
            QCOMPARE(operators.verify(row.name, secret(row.password)).value_or(-1), row.level);
    }

    void add()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("upsdesk/upsdesk.conf");
        const auto add = [&](const QString& name, int level, const char* password) {
            return addOperator(path, name, level, secret(password), HashLimits::minimal());
        };
        QVERIFY(!add("", 1, "long enough").isEmpty());
        QVERIFY(!add("a", 1, "\xc3\xbc\xc3\xbc\xc3\xbc\xc3\xbc").isEmpty()); // 4 characters
        QVERIFY(!QFile::exists(path));

        QCOMPARE(add("anna", 1, "first word"), QString());
        QCOMPARE(add("Bert \"B\" # 1", 9, "third secret"), QString());
        QCOMPARE(add("anna", 2, "second word"), QString());
        const DeskConfig config = DeskConfig::load(path);
        QVERIFY(config.faults().isEmpty());
        const Operators operators(config.operators());
        QCOMPARE(operators.accounts().size(), 2);
        QVERIFY(!operators.verify("anna", secret("first word")));
        QCOMPARE(operators.verify("anna", secret("second word")).value_or(-1), 2);
        QCOMPARE(operators.verify("Bert \"B\" # 1", secret("third secret")).value_or(-1), 9);
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
        QCOMPARE(session.level(), 0);
        QCOMPARE(session.changes.count(), 2);

        session.logIn("bert", secret("b"));
        session.logOut(); // ends the check as well
        session.logIn("eve", secret("wrong"));
        QVERIFY(session.refusals.wait());
        QVERIFY(!session.isLoggedIn());
    }

    void failuresSlowDown()
    {
        SessionProbe session;
        QSignalSpy failed(&session, &OperatorSession::failed);
        const auto refused = [&session](const QString& name) {
            const int before = session.refusals.count();
            session.logIn(name, secret("wrong"));
            if (session.refusals.count() == before)
                session.refusals.wait();
            return session.refusals.last().at(0).toString();
        };
        for (int i = 0; i < 3; ++i)
            QVERIFY(refused("anna").contains("wrong"));
        for (int wait : {1, 2, 4, 8, 16, 32, 60, 60}) {
            QCOMPARE(refused("anna"),
                     QString("Too many failed attempts. Try again in %1 s.").arg(wait));
            session.slept += wait * 1000;
            QVERIFY(refused("anna").contains("wrong"));
        }
        QVERIFY(refused("bert").contains("wrong")); // per name
        QVERIFY(refused("sesame").contains("wrong"));
        QCOMPARE(failed.count(), 3 + 8 + 2);
        QCOMPARE(failed.first().at(0), QVariant("anna"));
        QCOMPARE(failed.last().at(0), QVariant("")); // may be a password
        session.slept += 60 * 1000;
        QVERIFY(session.enter("anna", "a"));
        session.logOut();
        QVERIFY(refused("anna").contains("wrong")); // counts from the beginning
    }

    void tableIsReadAgain()
    {
        SessionProbe session;
        QCOMPARE(session.whyNoChange().isEmpty(), false);
        OperatorAccounts table{account("anna", 1, "a")};
        session.setSource([&table] { return Operators(table); });
        QVERIFY(session.enter("anna", "a"));
        QCOMPARE(session.whyNoChange(), QString());
        table[0].level = 0;
        QVERIFY(session.whyNoChange().contains("level 1"));
        table.clear(); // no operators: everybody may again, but nobody is logged in
        QCOMPARE(session.whyNoChange(), QString());
        QVERIFY(!session.isLoggedIn());
        table = {account("carl", 2, "c")}; // added while the desk runs
        QVERIFY(session.enter("carl", "c"));
        session.cancelLogIn();
        QVERIFY(session.isLoggedIn());
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
    }
};

QTEST_GUILESS_MAIN(TestOperators)
#include "tst_operators.moc"

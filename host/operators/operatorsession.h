#ifndef OPERATORSESSION_H
#define OPERATORSESSION_H

// Who is logged in at the window, and for how long.
// May touch: Qt Core, operators, the boot clock. Checks passwords in a pool thread.

#include "operators/operators.h"

#include <QHash>
#include <QObject>
#include <QTimer>

#include <functional>

class OperatorSession : public QObject
{
    Q_OBJECT

public:
    explicit OperatorSession(QObject* parent = nullptr);

    static constexpr int kDefaultIdleTime = 10 * 60 * 1000; // ms

    bool isLoggedIn() const { return !m_name.isEmpty(); }
    QString name() const { return m_name; } // empty: nobody
    int level() const { return m_level; }   // 0: nobody

    // False: nobody can log in before an operator has been added.
    bool hasOperators() const { return !m_operators.accounts().isEmpty(); }
    // Who is logged in stays so, at the level of the new table; who is not in it is logged out.
    void setOperators(const Operators& operators);
    // Where the table comes from; asked again at every log-in and check().
    using Source = std::function<Operators()>;
    void setSource(const Source& source) { m_source = source; }
    // Who has gone from the table since is logged out. Before anything that takes a level.
    void check();

    // Lowest level that may change devices and settings, where there are operators at all.
    static constexpr int kChangeLevel = 1;
    // Why nothing may be changed now; empty: it may. Checks first.
    QString whyNoChange();

    // ms without activity() until the operator is logged out; above 0.
    void setIdleTime(int milliseconds);

    // Answers with changed() or refused(). A second call before the answer replaces the first. Who
    // is logged in stays so until the answer is yes. From the third failure of a name on it has to
    // wait, 1 s, 2, 4 ... at most 60 s, and is refused unseen until then.
    void logIn(const QString& name, const SecretText& password);
    bool isChecking() const { return m_checking; }
    // Ends a check that is under way; who is logged in stays so.
    void cancelLogIn();
    // Also ends a check that is under way.
    void logOut();
    // Somebody uses the window. Logs out where the idle time has passed unnoticed, as it does while
    // the machine sleeps; so call it before what the activity asks for.
    void activity();

signals:
    void changed();
    void refused(const QString& reason);
    // A wrong password, or a name that nobody has; then it is empty: people type passwords there.
    void failed(const QString& name);

protected:
    // ms; goes on while the machine sleeps, and no setting of the time moves it.
    virtual qint64 clockMs() const;

private:
    struct Failures {
        int count = 0;
        qint64 until = 0; // ms of clockMs(); refused unseen before
    };

    void answer(int attempt, const QString& name, bool fits);
    void set(const QString& name, int level);
    void noteFailure(const QString& name);

    Operators m_operators;
    Source m_source;
    QHash<QString, Failures> m_failures;
    QString m_name;
    int m_level = OperatorAccount::kMinLevel;
    int m_attempt = 0;
    bool m_checking = false;
    qint64 m_lastActivity = 0; // ms of clockMs()
    QTimer m_idle;
};

#endif // OPERATORSESSION_H

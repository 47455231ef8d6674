#ifndef LOGINCHECK_H
#define LOGINCHECK_H

// Carries the answer of a password check from the thread that made it.
// May touch: Qt Core.

#include <QObject>

class LoginCheck : public QObject
{
    Q_OBJECT

signals:
    void done(int attempt, const QString& name, bool fits);
};

#endif // LOGINCHECK_H

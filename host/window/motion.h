#ifndef MOTION_H
#define MOTION_H

// Whether things move on the desk: as the operator has chosen, or as the desktop wants it.
// May touch: the session bus, the desk's style, the desk's settings.

#include "config/desksettings.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

class Motion : public QObject
{
    Q_OBJECT

public:
    // Asks the desktop and follows it, without waiting; where nobody answers, things move.
    explicit Motion(const QDBusConnection& bus = QDBusConnection::sessionBus(),
                    QObject* parent = nullptr);

    void choose(MotionChoice choice);
    bool moves() const;

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask(QDBusConnection bus, const QString& group, const QString& key);
    void apply();

    MotionChoice m_choice = MotionChoice::System;
    bool m_desktopMoves = true;
};

#endif // MOTION_H

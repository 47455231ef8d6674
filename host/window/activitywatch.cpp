#include "window/activitywatch.h"

#include <QCoreApplication>
#include <QEvent>

ActivityWatch::ActivityWatch(OperatorSession& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ActivityWatch::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        m_session.activity();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

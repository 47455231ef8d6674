#include "connectors/nut/networkthread.h"

#include <QCoreApplication>

std::shared_ptr<NetworkThread> NetworkThread::instance()
{
    static std::weak_ptr<NetworkThread> running;
    std::shared_ptr<NetworkThread> thread = running.lock();
    if (!thread) {
        thread = std::make_shared<NetworkThread>();
        thread->setObjectName(QStringLiteral("nut"));
        thread->start();
        running = thread;
    }
    return thread;
}

NetworkThread::~NetworkThread()
{
    quit();
    wait();
}

void NetworkThread::run()
{
    exec();
    // Servers that were let go are still to be deleted here, with their sockets.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

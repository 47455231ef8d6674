#ifndef NETWORKTHREAD_H
#define NETWORKTHREAD_H

// The one thread in which all lines to NUT servers live. Nothing in it blocks, so its end is never
// waited for. Runs while somebody holds it.
// May touch: Qt Core.

#include <QThread>

#include <memory>

class NetworkThread : public QThread
{
    Q_OBJECT

public:
    // GUI thread only. The last holder to let go, there too, ends the thread.
    static std::shared_ptr<NetworkThread> instance();
    ~NetworkThread() override;

protected:
    void run() override;
};

#endif // NETWORKTHREAD_H

#include "cli/onepoll.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

void pollOnce(Device& device)
{
    constexpr int checkEveryMs = 500;
    QEventLoop loop;
    QObject::connect(&device, &Device::polled, &loop, &QEventLoop::quit);
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, &device, &Device::checkPollLimit);
    limit.start(checkEveryMs);
    QTimer::singleShot(0, &loop, [&device] { device.startPoll(); });
    loop.exec();
}

CommandResult sendOnce(Device& device, const UpsCommand& command, int limitSeconds)
{
    CommandResult result;
    result.id = command.id;
    result.message = QCoreApplication::translate("OnePoll", "There was no answer in time.");

    QEventLoop loop;
    QObject::connect(&device, &Device::commandFinished, &loop, [&](const CommandResult& answer) {
        if (answer.id != command.id)
            return;
        result = answer;
        loop.quit();
    });
    QTimer::singleShot(limitSeconds * 1000, &loop, &QEventLoop::quit);
    QTimer::singleShot(0, &loop, [&] { device.send(command); });
    loop.exec();
    return result;
}

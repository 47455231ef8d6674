#include "cli/onepoll.h"

#include "fleet/singlepoll.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

void pollOnce(Device& device)
{
    QEventLoop loop;
    SinglePoll poll(device);
    QObject::connect(&poll, &SinglePoll::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(0, &poll, &SinglePoll::start);
    loop.exec();
}

CommandResult sendOnce(Device& device, const UpsCommand& command, int limitSeconds)
{
    CommandResult result;
    result.id = command.id;
    result.outcome = CommandOutcome::Unknown;
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

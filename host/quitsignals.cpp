#include "quitsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

std::array<int, 2> pipeEnds{-1, -1};

// May do no more than what is safe in a signal handler.
void noteSignal(int signal)
{
    const char byte = static_cast<char>(signal);
    [[maybe_unused]] const auto written = ::write(pipeEnds[1], &byte, 1);
}

} // namespace

void quitOnSignals(const std::function<void()>& hangUp)
{
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // as without: the process ends at once
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [notifier, hangUp] {
        char signal = 0;
        while (::read(pipeEnds[0], &signal, 1) == 1) {
            if (signal == SIGHUP && hangUp) {
                hangUp();
                continue;
            }
            notifier->setEnabled(false);
            QCoreApplication::quit();
            return;
        }
    });
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (int signal : {SIGTERM, SIGINT, SIGHUP}) {
        if (signal == SIGHUP && hangUp)
            action.sa_flags = SA_RESTART;
        ::sigaction(signal, &action, nullptr);
    }
}

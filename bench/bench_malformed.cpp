// Malformed answers without end: does memory grow with them?
// May touch: the connectors, the tests' hostile device, the memory figures of Linux.

#include "connectors/factory/connectorfactory.h"
#include "support/hostiledevice.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr int kSteps = 10;
constexpr double kMostGrowth = 1.25; // from the first step, when all caches are warm, to the last

double residentMiB()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList pages = file.readAll().split(' ');
    return pages.value(1).toDouble() * static_cast<double>(::sysconf(_SC_PAGESIZE)) / (1 << 20);
}

// The state that the poll ends with.
LinkState pollOnce(Connector& connector)
{
    LinkState state = LinkState::Connecting;
    QEventLoop loop;
    QObject::connect(&connector, &Connector::polled, &loop, [&](const PollResult& result) {
        state = result.state;
        loop.quit();
    });
    connector.poll();
    loop.exec();
    return state;
}

bool face(const char* name, DeviceAddress::Scheme scheme, int answers)
{
    HostileDevice device(scheme);
    const auto connector = makeConnector(device.settings());
    double first = 0;
    double last = 0;
    int polls = 0;
    for (int step = 1; step <= kSteps; ++step) {
        for (; device.spoilt() < answers / kSteps * step; ++polls)
            pollOnce(*connector);
        last = residentMiB();
        first = step == 1 ? last : first;
    }
    device.behave();
    pollOnce(*connector); // what is still on its way
    const bool live = pollOnce(*connector) == LinkState::Live;
    const bool good = live && last < kMostGrowth * first;
    std::printf("%-5s %d spoilt answers, %d polls: %.1f MiB after a tenth, %.1f MiB at the end, "
                "%s afterwards: %s\n",
                name, device.spoilt(), polls, first, last, live ? "live" : "NOT LIVE",
                good ? "ok" : "MISSED");
    return good;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int answers = argc > 1 ? std::max(std::atoi(argv[1]), kSteps) : 100000;
    const bool nut = face("NUT", DeviceAddress::Scheme::Nut, answers);
    const bool snmp = face("SNMP", DeviceAddress::Scheme::Snmp, answers);
    return nut && snmp ? 0 : 1;
}

#include "peers/viewcosts.h"

#include "childform.h"
#include "peers/contest.h"
#include "peers/ourworks.h"

#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <cstdio>

namespace {

constexpr QSize kViewSize(900, 700);
constexpr int kMsPerSecond = 1000;

} // namespace

double idleShare(int views, int seconds)
{
    std::vector<std::unique_ptr<ChildForm>> hidden;
    for (int i = 0; i < views; ++i) {
        hidden.push_back(std::make_unique<ChildForm>());
        hidden.back()->show();
        finishPainting();
        hidden.back()->hide();
    }
    QEventLoop loop;
    const auto wait = [&loop](int ms) {
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        loop.exec();
    };
    wait(kMsPerSecond); // what hiding has left to do
    const double begin = cpuMs();
    wait(seconds * kMsPerSecond);
    return 100 * (cpuMs() - begin) / (seconds * kMsPerSecond);
}

OpeningCost openView()
{
    OpeningCost cost;
    double begin = cpuMs();
    const auto lap = [&begin] {
        const double now = cpuMs();
        return now - std::exchange(begin, now);
    };
    ChildForm view;
    cost.construct = lap();
    view.resize(kViewSize);
    view.show();
    cost.show = lap();
    finishPainting();
    cost.paint = lap();
    return cost;
}

int printOpenings()
{
    for (int i = 0; i < 2; ++i) {
        const OpeningCost cost = openView();
        std::printf("%f %f %f\n", cost.construct, cost.show, cost.paint);
    }
    return 0;
}

Openings openingsOfProcess(const QString& program, const QString& option)
{
    QProcess process;
    process.start(program, {option});
    process.waitForFinished();
    const QList<QByteArray> lines = process.readAllStandardOutput().split('\n');
    const auto costOf = [&lines](int number) {
        const QList<QByteArray> parts = lines.value(number).split(' ');
        return OpeningCost{parts.value(0).toDouble(), parts.value(1).toDouble(),
                           parts.value(2).toDouble()};
    };
    return {costOf(0), costOf(1)};
}

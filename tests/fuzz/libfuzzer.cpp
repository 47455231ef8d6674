// One target under libFuzzer; which one, FUZZ_TARGET says. The first folder on the command line
// gets the target's good inputs to start from.
// May touch: the targets; files in that folder.

#include "fuzztargets.h"

#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstring>

namespace {

const FuzzTarget& target()
{
    for (const FuzzTarget& each : fuzzTargets())
        if (std::strcmp(each.name, FUZZ_TARGET) == 0)
            return each;
    qFatal("no target %s", FUZZ_TARGET);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    for (int i = 1; i < *argc; ++i) {
        const QDir folder(QString::fromLocal8Bit((*argv)[i]));
        if ((*argv)[i][0] == '-' || !folder.exists())
            continue;
        for (int n = 0; n < target().corpus.size(); ++n) {
            QFile file(folder.filePath(QStringLiteral("good-%1").arg(n)));
            if (file.open(QIODevice::WriteOnly))
                file.write(target().corpus.at(n));
        }
        break;
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FuzzTarget& fuzzed = target();
    fuzzed.run(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    return 0;
}

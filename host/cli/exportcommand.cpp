// upsdesk export: what is stored of a device.
// May touch: the stored history.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/storedhistory.h"
#include "cli/subcommands.h"
#include "history/historyqueries.h"
#include "history/historytext.h"

#include <QJsonDocument>

#include <cstdio>
#include <limits>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Export", text);
}

// False when nobody reads it any more.
bool print(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout) ==
           static_cast<std::size_t>(bytes.size());
}

int exportDevice(HistoryStore& store, const QString& text, TimeRange range, bool asJson)
{
    const auto device = storedDevice(store, text);
    if (!device)
        return ExitUsage;
    HistoryQueries queries(store);
    bool isRead = asJson || print(csvLine(sampleTitles()));
    queries.forEach(device->id, range, [&](qint64 timeMs, qint64 spanMs, const Bucket& bucket) {
        isRead = isRead && print(asJson ? QJsonDocument(sampleObject(timeMs, spanMs, bucket))
                                                  .toJson(QJsonDocument::Compact) +
                                              '\n'
                                        : csvLine(sampleFields(timeMs, spanMs, bucket)));
        return isRead;
    });
    std::fflush(stdout);
    if (queries.errorText().isEmpty())
        return ExitOk;
    printError(queries.errorText());
    return ExitNotReachable;
}

} // namespace

int runExport(const QStringList& arguments)
{
    CliParser parser(QStringLiteral("export"));
    const QCommandLineOption from("from", tr("First time, as 2026-03-29T14:00 or 36h (ago)."), "T");
    const QCommandLineOption to("to", tr("Time before which it ends."), "T");
    const QCommandLineOption csv("csv", tr("Print CSV (default)."));
    const QCommandLineOption json("json", tr("Print one JSON object a line."));
    parser.addOptions({from, to, csv, json});
    if (!parser.read(arguments))
        return ExitUsage;
    if (parser.isSet(csv) && parser.isSet(json)) {
        parser.tellUsage(tr("--csv and --json exclude each other"));
        return ExitUsage;
    }
    const auto first = timeOption("from", parser.value(from), 0);
    const auto last = timeOption("to", parser.value(to), std::numeric_limits<qint64>::max());
    if (!first || !last)
        return ExitUsage;
    const auto store = openStoredHistory();
    return store ? exportDevice(*store, parser.positionalArguments().first(), {*first, *last},
                                parser.isSet(json))
                 : ExitNotReachable;
}

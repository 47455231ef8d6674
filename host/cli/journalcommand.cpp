// upsdesk journal: what happened, oldest first.
// May touch: the stored history.

#include "cli/cliparser.h"
#include "cli/clisupport.h"
#include "cli/commandline.h"
#include "cli/storedhistory.h"
#include "cli/subcommands.h"
#include "history/historyqueries.h"
#include "history/historytext.h"

#include <QJsonDocument>

namespace {

constexpr int kRowsAtOnce = 1000;

QString tr(const char* text)
{
    return QCoreApplication::translate("Journal", text);
}

QString plainLine(const JournalEntry& entry)
{
    const QJsonObject safe = journalObject(entry);
    const auto word = [&safe](const char* key) {
        return safe.value(QLatin1String(key)).toString();
    };
    QString line =
        QStringLiteral("%1  %2  %3  %4")
            .arg(word("onset"), word("severity").leftJustified(8), word("device"), word("text"));
    if (!entry.message.isEmpty())
        line += QStringLiteral(": ") + word("message");
    if (entry.endMs && !entry.isMoment)
        line += tr(" (until %1)").arg(word("end"));
    if (!entry.operatorName.isEmpty())
        line += QStringLiteral(" [%1]").arg(word("operator"));
    return line;
}

int printJournal(HistoryStore& store, JournalFilter filter, bool asJson)
{
    filter.oldestFirst = true;
    filter.limit = kRowsAtOnce;
    HistoryQueries queries(store);
    for (;; filter.offset += kRowsAtOnce) {
        const QVector<JournalEntry> entries = queries.journal(filter);
        for (const JournalEntry& entry : entries)
            printOut(asJson
                         ? QString::fromUtf8(
                               QJsonDocument(journalObject(entry)).toJson(QJsonDocument::Compact))
                         : plainLine(entry));
        if (!queries.errorText().isEmpty()) {
            printError(queries.errorText());
            return ExitNotReachable;
        }
        if (entries.size() < kRowsAtOnce)
            return ExitOk;
    }
}

} // namespace

int runJournal(const QStringList& arguments)
{
    CliParser parser(QStringLiteral("journal"));
    const QCommandLineOption device("device", tr("Only of this device."), "D");
    const QCommandLineOption since(
        "since", tr("What lasted until then or began later, as 2026-03-29T14:00 or 36h (ago)."),
        "T");
    const QCommandLineOption json("json", tr("Print one JSON object a line."));
    parser.addOptions({device, since, json});
    if (!parser.read(arguments))
        return ExitUsage;
    const auto from = timeOption("since", parser.value(since), 0);
    if (!from)
        return ExitUsage;
    const auto store = openStoredHistory();
    if (!store)
        return ExitNotReachable;
    JournalFilter filter;
    filter.fromMs = from;
    if (parser.isSet(device)) {
        const auto found = storedDevice(*store, parser.value(device));
        if (!found)
            return ExitUsage;
        filter.device = found->name;
    }
    return printJournal(*store, filter, parser.isSet(json));
}

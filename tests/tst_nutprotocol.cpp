// The lines of the NUT protocol, well-formed and not, which command stands for which, and what
// dialogues make of answers.

#include "connectors/nut/nutanswer.h"
#include "connectors/nut/nutorder.h"
#include "connectors/nut/nutpoll.h"
#include "support/nutanswers.h"

#include <QtTest>

using Words = QList<QByteArray>;
using K = CommandKind;
using std::chrono::seconds;

namespace {

using O = CommandOutcome;

// What an order says, line by line, and what it concludes; "-": the connection breaks before
// the line goes out, "!": after.
const struct {
    const char* title;
    Words said; // answers that differ from the orderly ones: "LINE=ANSWER"
    O outcome;
    const char* message;
    int sent;        // orders that went out
    int minutes = 0; // of standby; 0: a self-test
} kOrders[] = {
    {"followed", {}, O::Done, "was carried out", 1},
    {"silent server", {"LIST CMD=!"}, O::NoAnswer, "Nothing was sent", 0},
    {"refused before", {"LIST RW=ERR DATA-STALE"}, O::Refused, "Nothing was sent", 0},
    {"log-in lost before it went out", {"INSTCMD=-"}, O::Done, "was carried out", 1},
    {"lost before it went out", {"INSTCMD=-", "INSTCMD=-"}, O::NoAnswer, "Nothing was sent", 0},
    {"lost between two steps",
     {"INSTCMD=-", "INSTCMD=-"},
     O::Unknown,
     "shutdown.return was not sent",
     1,
     10},
    {"two steps", {}, O::Done, "shutdown.return was carried out", 2, 10},
    {"lost after it went out", {"INSTCMD=!"}, O::Unknown, "not sent again", 1},
    {"not tracked", {"INSTCMD=OK"}, O::Unknown, "cannot tell", 1},
    {"nonsense", {"INSTCMD=WHAT"}, O::Unknown, "not sent again", 1},
    {"refused", {"INSTCMD=ERR ACCESS-DENIED"}, O::Refused, "wrong password", 1},
    {"failed", {"GET TRACKING=ERR FAILED"}, O::Refused, "reports that it failed", 1},
    {"not known to the driver", {"GET TRACKING=ERR UNKNOWN"}, O::Refused, "driver", 1},
    {"forgotten by a new server",
     {"GET TRACKING=!", "GET TRACKING=ERR UNKNOWN"},
     O::Unknown,
     "connection broke",
     1},
    {"for ever pending", {"GET TRACKING*=PENDING"}, O::Unknown, "Look at the readings", 1},
    {"old server", {"SET TRACKING=ERR UNKNOWN-COMMAND", "INSTCMD=OK"}, O::Unknown, "", 1},
};

} // namespace

class TestNutProtocol : public QObject
{
    Q_OBJECT

private slots:
    void words()
    {
        const struct {
            const char* line;
            std::optional<Words> words; // empty: not closed
        } rows[] = {
            {"  UPS  \"Rack 3\"\t", Words{"UPS", "Rack 3"}},
            {R"(a "b \"c\" \\" \"d)", Words{"a", "b \"c\" \\", "\"d"}},
            {"a \"\xc3\xa4=\xff#[x]\"", Words{"a", "\xc3\xa4=\xff#[x]"}},
            {"VAR ups a \"\"", Words{"VAR", "ups", "a", ""}},
            {"VAR ups a \"1", {}},
            {"VAR ups a \\", {}},
        };
        for (const auto& row : rows)
            QVERIFY2(splitNutLine(row.line) == row.words, row.line);

        const QByteArray word = "a \"b\" \\ #=\xc3\xa4";
        QCOMPARE(*splitNutLine("X " + nutQuoted(word) + " Y"), (Words{"X", word, "Y"}));
        QVERIFY2(!nutQuoted("ups\nSET VAR x").contains('\n'), "one word never becomes two lines");
    }

    void refusals()
    {
        for (const char* word : {"DATA-STALE", "DRIVER-NOT-CONNECTED"})
            QCOMPARE(nutRefusal(word).state, LinkState::Stale);
        for (const char* word : {"UNKNOWN-UPS", "%1 %n <b>", ""}) {
            const NutFailure failure = nutRefusal(word);
            QCOMPARE(failure.state, LinkState::Refused);
            QVERIFY(failure.isAnswer() && !failure.message.isEmpty());
        }
    }

    void answers()
    {
        using S = NutAnswer::State;
        const QByteArray begin = "BEGIN LIST VAR unit\n";
        const QByteArray row = "VAR unit a \"1\"\n";
        const struct {
            const char* question;
            QByteArray lines;
            NutAnswer::State state; // after the last line
            int rows;
        } rows[] = {
            {"GET UPSDESC unit", "UPSDESC unit \"x\"\n", S::Complete, 1},
            {"GET UPSDESC unit", "ERR UNKNOWN-UPS\n", S::Complete, 0},
            {"LIST VAR \"unit\"", begin + row + row + "END LIST VAR unit\n", S::Complete, 2},
            {"LIST VAR \"unit\"", begin + row, S::Open, 1},
            {"LIST VAR \"unit\"", begin + row + "ERR DATA-STALE\n", S::Broken, 1},
            {"LIST VAR \"unit\"", "BEGIN LIST VAR other\n", S::Unusable, 0},
            {"LIST VAR \"unit\"", begin + "VAR other a \"1\"\n", S::Unusable, 0},
            {"LIST VAR \"unit\"", begin + "VAR unit\n", S::Unusable, 0},
            {"LIST VAR \"unit\"", begin + row.repeated(NutAnswer::kMostRows), S::Open,
             NutAnswer::kMostRows},
            {"LIST VAR \"unit\"", begin + row.repeated(NutAnswer::kMostRows + 1), S::Unusable,
             NutAnswer::kMostRows},
            {"GET UPSDESC unit", QByteArray(NutAnswer::kLongestLine, 'x') + '\n', S::Unusable, 0},
        };
        for (const auto& line : rows) {
            NutAnswer answer(line.question);
            S state = S::Open;
            for (const QByteArray& each : line.lines.chopped(1).split('\n'))
                state = answer.take(each);
            QVERIFY2(state == line.state, line.lines.left(80));
            QCOMPARE(answer.rows().size(), line.rows);
        }
    }

    void orders()
    {
        for (const auto& row : kOrders) {
            UpsCommand command;
            command.kind = row.minutes > 0 ? CommandKind::Standby : CommandKind::SelfTest;
            command.standbyMinutes = row.minutes;
            NutOrder order(command, {"h port 1", "unit", "anna", "secret", seconds(5)});
            Words special = row.said;
            int sent = 0;
            quint64 connection = 1;
            quint64 loggedInOn = 0;
            for (int i = 0; i < 1000; ++i) {
                const auto question = order.next();
                if (!question)
                    break;
                if (question->line.startsWith("PASSWORD"))
                    loggedInOn = connection;
                QVERIFY2(!question->isOrder || loggedInOn == connection, row.title);
                NutReply reply;
                QByteArray text = orderlyNutAnswer(question->line);
                for (const QByteArray& each : qAsConst(special)) {
                    const QByteArray start = each.left(each.indexOf('='));
                    if (!question->line.startsWith(QByteArray(start).replace("*", "")))
                        continue;
                    text = each.mid(start.size() + 1) + '\n';
                    if (!start.endsWith('*'))
                        special.removeOne(QByteArray(each));
                    break;
                }
                reply.wasSent = text != "-\n";
                sent += question->isOrder && reply.wasSent;
                if (text == "-\n" || text == "!\n") {
                    reply.failure = {LinkState::Lost, {}, "The line is dead."};
                    reply.connection = connection++;
                } else {
                    NutAnswer answer(question->line);
                    for (const QByteArray& line : text.chopped(1).split('\n'))
                        answer.take(line);
                    reply.failure = answer.refusal();
                    reply.rows = answer.rows();
                    reply.connection = connection;
                }
                reply.elapsed = question->delay;
                order.take(reply);
            }
            const CommandResult result = order.result();
            QVERIFY2(result.outcome == row.outcome && result.message.contains(row.message),
                     qPrintable(QString("%1: %2").arg(row.title, result.message)));
            QCOMPARE(sent, row.sent);
        }
    }

    // A link that others can listen to is said to be one.
    void notesOfTheLink()
    {
        const struct {
            LinkSecurity link;
            const char* note; // empty: none
        } rows[] = {
            {{false, false, false, {}, {}, {}}, "plain text"},
            {{true, false, false, {}, {}, {}}, ""},
            {{false, true, false, "expired", {}, {}}, "not trusted: expired"},
            {{false, true, true, {}, {}, {}}, ""},
        };
        for (const auto& row : rows) {
            NutPoll poll("h port 1", "unit");
            NutReply reply;
            reply.security = row.link;
            reply.rows = {{"VAR", "unit", "ups.status", "OL"}, {"VAR", "unit", "ups.id", "U"}};
            QVERIFY(poll.next());
            poll.take(reply);
            QVERIFY(!poll.next());
            QCOMPARE(poll.result().state, LinkState::Live);
            const QString notes = poll.result().reading.notes.join(' ');
            QVERIFY2(notes.contains(row.note) && notes.isEmpty() == !row.note[0],
                     qPrintable(notes));
        }
    }

    void plans()
    {
        const struct {
            CommandKind kind;
            Words offered;
            const char* command;
            Words settings; // variable=value
        } rows[] = {
            {K::SelfTest,
             {"test.battery.start", "test.battery.start.quick"},
             "test.battery.start.quick",
             {}},
            {K::DischargeTest, {"calibrate.start"}, "calibrate.start", {}},
            {K::Shutdown,
             {"shutdown.stayoff", "load.off"},
             "shutdown.stayoff",
             {"ups.delay.shutdown=45"}},
            {K::Shutdown, {"load.off"}, "load.off", {}}, // has no delay
            {K::Standby,
             {"shutdown.return"},
             "shutdown.return",
             {"ups.delay.shutdown=45", "ups.delay.start=600"}},
            {K::WakeUp, {"load.off", "outlet.1.load.on"}, "", {}}, // only part of the name
        };
        for (const auto& row : rows) {
            UpsCommand command;
            command.kind = row.kind;
            command.standbyMinutes = 10;
            command.shutdownDelay = 45;
            const NutVariables writable{{"ups.delay.start", "30"}, {"ups.delay.shutdown", "20"}};
            const NutCommandPlan plan = planNutCommand(command, row.offered, writable);
            QCOMPARE(plan.command, QByteArray(row.command));
            Words settings;
            for (const NutSetting& setting : plan.before)
                settings << setting.variable + '=' + setting.value;
            QCOMPARE(settings, row.settings);
            const NutVariables same{{"ups.delay.start", "0600"}, {"ups.delay.shutdown", "45"}};
            QVERIFY2(planNutCommand(command, row.offered, same).before.isEmpty(), "set already");
            const NutCommandPlan fixed = planNutCommand(command, row.offered, {});
            QCOMPARE(fixed.startDelayIsFixed, row.kind == K::Standby);
        }
    }
};

QTEST_GUILESS_MAIN(TestNutProtocol)
#include "tst_nutprotocol.moc"

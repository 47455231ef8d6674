// Our views against what a user would pick instead for the same visible work, and against a painter
// that does the least: CPU time per step, in one run, in interleaved rounds.
//     bench_peers [--rounds N] [--steps N] [--ratio 1|2] [--only WORD] [--json]
// May touch: the library's views and whichever of Qwt, QCustomPlot and QtCharts is installed.

#include "peers/contest.h"
#include "peers/ourworks.h"
#include "peers/qwtworks.h"
#include "peers/viewcosts.h"
#ifdef HAS_CUSTOMPLOT
#include "peers/customplotworks.h"
#endif
#ifdef HAS_QTCHARTS
#include "peers/qtchartsworks.h"
#endif

#include <QApplication>
#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

namespace {

const QString kOpeningOption = QStringLiteral("--print-openings");

QVector<Work> trends(const TrendFeed& feed)
{
    QVector<Work> works{ourTrend(feed), qwtTrend(feed)};
#ifdef HAS_CUSTOMPLOT
    works << customPlotTrend(feed);
#endif
#ifdef HAS_QTCHARTS
    works << qtChartsTrend(feed);
#endif
    return works << bareTrend(feed);
}

struct Row {
    const char* title;
    std::function<QVector<Work>()> works;
    bool hasLimit;
    double target;
};

const QVector<Row>& rows()
{
    constexpr QSize kGauge(300, 200);
    constexpr QSize kFlowPage(900, 700);
    static const QVector<Row> kRows{
        {"trend chart 800x400",
         [] {
             return trends({{800, 400}});
         },
         true, 0.45},
        {"trend chart 1600x900",
         [] {
             return trends({{1600, 900}});
         },
         true, 0.8},
        {"trend chart 800x400, labels unchanged",
         [] {
             return trends({{800, 400}, 4, false});
         },
         true, 0.6},
        {"three-phase trend chart 800x400",
         [] {
             return trends({{800, 400}, 6});
         },
         true, 0.45},
        {"gauge 300x200",
         [=] {
             return QVector<Work>{ourGauge(kGauge), qwtGauge(kGauge), bareGauge(kGauge)};
         },
         true, 0.8},
        {"energy flow 900x700, one step",
         [=] {
             return QVector<Work>{ourFlow(kFlowPage), plainFlow(kFlowPage)};
         },
         false, 0.05},
        {"real-time table",
         [] {
             return QVector<Work>{ourTable(), plainTable()};
         },
         false, 0.12},
    };
    return kRows;
}

// A figure that has a limit and no peer.
struct Figure {
    QString name;
    double value;
    double target;
    bool isMet() const { return value <= target; }
};

QVector<Figure> viewFigures(int rounds)
{
    constexpr int kViews = 1000;
    constexpr int kIdleSeconds = 5;
    QVector<double> first;
    QVector<double> longest;
    QVector<double> second;
    for (int i = 0; i < rounds; ++i) {
        const Openings openings =
            openingsOfProcess(QCoreApplication::applicationFilePath(), kOpeningOption);
        first << openings.first.total();
        longest << openings.first.longest();
        second << openings.second.total();
    }
    return {
        {QStringLiteral("first device view, ms"), spreadOf(first).median, 50},
        {QStringLiteral("... its longest step, ms"), spreadOf(longest).median, 16},
        {QStringLiteral("second device view, ms"), spreadOf(second).median, 15},
        {QStringLiteral("1,000 hidden views, % of a core"), idleShare(kViews, kIdleSeconds), 0.1}};
}

struct Report {
    QString text;
    QString table;
    QJsonArray json;
    bool isGood = true;

    void add(const Contest& contest)
    {
        text += contest.text();
        table += contest.row();
        json << contest.json();
        isGood = isGood && contest.isMet();
    }
    void add(const Figure& figure)
    {
        const QString value = QString::number(figure.value, 'f', 3);
        text += QStringLiteral("%1: %2, target %3: %4\n")
                    .arg(figure.name, value)
                    .arg(figure.target)
                    .arg(figure.isMet() ? "met" : "MISSED");
        table += QStringLiteral("| %1 | %2 | - | - | - | %3, %4 |\n")
                     .arg(figure.name, value)
                     .arg(figure.target)
                     .arg(figure.isMet() ? "met" : "missed");
        json << QJsonObject{{"work", figure.name},
                            {"value", figure.value},
                            {"target", figure.target},
                            {"met", figure.isMet()}};
        isGood = isGood && figure.isMet();
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    for (int i = 1; i + 1 < argc; ++i) // before there is an application that could parse it
        if (qstrcmp(argv[i], "--ratio") == 0)
            qputenv("QT_SCALE_FACTOR", argv[i + 1]);
    QApplication app(argc, argv);
    if (QCoreApplication::arguments().contains(kOpeningOption))
        return printOpenings();

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{"rounds", "Rounds of each work.", "N", "15"},
                       {"steps", "Steps of each work in a round.", "N", "40"},
                       {"ratio", "Device pixel ratio.", "N", "1"},
                       {"only", "Works whose name has this word.", "WORD"},
                       {"json", "Print JSON."}});
    parser.process(app);
    const int rounds = qMax(parser.value("rounds").toInt(), 1);
    const int steps = qMax(parser.value("steps").toInt(), 1);
    const QString only = parser.value("only");

    Report report;
    for (const Row& row : rows()) {
        if (!QString::fromLatin1(row.title).contains(only))
            continue;
        Contest contest(QString::fromLatin1(row.title), row.works(), row.hasLimit, row.target);
        contest.run(rounds, steps);
        report.add(contest);
    }
    if (QStringLiteral("views").contains(only))
        for (const Figure& figure : viewFigures(qMin(rounds, 5)))
            report.add(figure);
    const QByteArray out =
        parser.isSet("json")
            ? QJsonDocument(report.json).toJson()
            : (report.text + QLatin1Char('\n') + Contest::rowHead() + report.table).toUtf8();
    std::fwrite(out.constData(), 1, std::size_t(out.size()), stdout);
    return report.isGood ? 0 : 1;
}

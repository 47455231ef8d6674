#include "peers/ourworks.h"

#include "datachart.h"
#include "dynamicchart.h"
#include "energyline.h"
#include "globalvar.h"
#include "rtdataform.h"
#include "threedynamicchart.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QTableWidget>
#include <QTimer>

namespace {

constexpr int kLastRealTimeKey = 72;
constexpr int kSnapshots = 8;
constexpr int kWallSamples = 400; // more than any chart here keeps

template <typename Chart>
class ClockedChart : public Chart
{
public:
    explicit ClockedChart(const TrendFeed& feed)
        : Chart(nullptr)
        , m_feed(feed)
    {}
    void step()
    {
        ++m_step;
        for (int id = 0; id < m_feed.series; ++id)
            this->addData(id, TrendFeed::value(id, m_step) * shareOfScale(id));
        finishPainting();
    }

protected:
    QTime wallClock() const override { return m_feed.now(m_step); }

private:
    // The right scale of ours ends at 100, and shows all at the peers' height.
    double shareOfScale(int id) const
    {
        constexpr double kRightScale = 100;
        return m_feed.hasRightScale() && id >= 3 ? kRightScale / TrendFeed::kFullScale : 1;
    }

    TrendFeed m_feed;
    int m_step = 0;
};

template <typename Chart>
Work trendWork(const TrendFeed& feed)
{
    auto chart = std::make_shared<ClockedChart<Chart>>(feed);
    chart->resize(feed.size);
    chart->show();
    finishPainting();
    for (int i = 0; i < kWallSamples; ++i)
        chart->step();
    return {QStringLiteral("ours"), [chart = chart.get()] { chart->step(); }, chart};
}

// A prepared ground, and as many lines as there are samples.
class BareTrend : public QWidget
{
public:
    explicit BareTrend(const TrendFeed& feed)
        : m_feed(feed)
        , m_ground(feed.size * devicePixelRatioF())
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        m_ground.setDevicePixelRatio(devicePixelRatioF());
        m_ground.fill(Qt::white);
        resize(feed.size);
    }
    void step()
    {
        ++m_step;
        update();
        finishPainting();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        constexpr double kPixelsPerSample = 5;
        QPainter painter(this);
        painter.drawPixmap(0, 0, m_ground);
        painter.setRenderHint(QPainter::Antialiasing);
        const double unit = height() * 11 / 13.0 / TrendFeed::kFullScale;
        for (int id = 0; id < m_feed.series; ++id) {
            QVector<QLineF> lines;
            double x = width() * 12 / 13.0;
            for (int k = 0; k + 1 < m_feed.samples(); ++k, x -= kPixelsPerSample)
                lines << QLineF(x, height() - unit * TrendFeed::value(id, m_step - k),
                                x - kPixelsPerSample,
                                height() - unit * TrendFeed::value(id, m_step - k - 1));
            painter.setPen(QColor::fromHsv(60 * id, 255, 200));
            painter.drawLines(lines);
        }
    }

private:
    TrendFeed m_feed;
    QPixmap m_ground;
    int m_step = 1 << 20; // so that none of the samples is before the first
};

// A prepared face, the uncovered part and the number.
class BareGauge : public QWidget
{
public:
    explicit BareGauge(const QSize& size)
        : m_ground(size * devicePixelRatioF())
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        m_ground.setDevicePixelRatio(devicePixelRatioF());
        m_ground.fill(Qt::white);
        resize(size);
    }
    void step()
    {
        ++m_step;
        update();
        finishPainting();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        constexpr int kSixteenths = 16;
        constexpr double kLeast = 60;
        constexpr double kDegreesPerUnit = 160 / 240.0;
        QPainter painter(this);
        painter.drawPixmap(0, 0, m_ground);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::lightGray);
        const double radius = 0.7 * qMin(height(), width() / 2);
        const QRectF arc(width() / 2.0 - radius, height() - 10 - radius, 2 * radius, 2 * radius);
        const double open = (gaugeValue(m_step) - kLeast) * kDegreesPerUnit;
        painter.drawPie(arc, 10 * kSixteenths, static_cast<int>((160 - open) * kSixteenths));
        painter.setPen(Qt::white);
        painter.drawText(QPointF(width() / 2.0, height() - 10.0),
                         QString::number(gaugeValue(m_step)));
    }

private:
    QPixmap m_ground;
    int m_step = 0;
};

class FlowPage : public Energyline
{
public:
    explicit FlowPage(const QSize& size)
    {
        timer->stop();
        QMap<int, QVariant> snapshot;
        for (int key = 0; key <= kLastRealTimeKey; ++key)
            snapshot[key] = 100;
        flushData(snapshot);
        for (bool* flow : {&input_rec_Flag, &rec_bat_Flag, &bat_inv_Flag, &rec_inv_Flag,
                           &inv_load_Flag, &byp_load_Flag})
            *flow = true;
        resize(size);
        show();
        finishPainting();
    }
    void step()
    {
        advanceFlow();
        finishPainting();
    }
    void repaintAll()
    {
        update();
        finishPainting();
    }
};

QMap<int, QVariant> snapshotOf(int step)
{
    QMap<int, QVariant> snapshot;
    for (int key = 0; key <= kLastRealTimeKey; ++key)
        snapshot[key] = 100 + (step + key) % kSnapshots;
    snapshot[realdata_InputNumLines] = snapshot[realdata_OutputNumLines] = 1;
    return snapshot;
}

using Texts = QVector<QVector<QString>>; // by row, then by column

Texts textsOf(const QTableWidget& table)
{
    Texts texts(table.rowCount());
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = 0; column < table.columnCount(); ++column)
            texts[row] << (table.item(row, column) ? table.item(row, column)->text() : QString());
    return texts;
}

// The cells that a refresh of ours writes.
void writePlainly(QTableWidget& table, const Texts& texts)
{
    constexpr int kFirstChangingLabel = 9;
    for (int row = 1; row < texts.size(); ++row)
        for (int column = row < kFirstChangingLabel ? 2 : 1; column < table.columnCount(); ++column)
            table.setItem(row, column, new QTableWidgetItem(texts.at(row).at(column)));
}

struct OurTable {
    OurTable()
    {
        for (int i = 0; i < kSnapshots; ++i)
            snapshots << snapshotOf(i);
        form.resize(700, 700);
        form.show();
        form.RefreshRTDataInfo(snapshots.first());
        finishPainting();
    }
    RTDataForm form;
    QVector<QMap<int, QVariant>> snapshots;
    int number = 0;
};

struct PlainTable {
    PlainTable()
        : table(source.form.findChild<QTableWidget*>()->rowCount(), 3)
    {
        for (int i = 0; i < kSnapshots; ++i) {
            source.form.RefreshRTDataInfo(snapshotOf(i));
            texts << textsOf(*source.form.findChild<QTableWidget*>());
        }
        source.form.hide();
        table.horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
        table.horizontalHeader()->hide();
        table.verticalHeader()->hide();
        table.resize(700, 700);
        writePlainly(table, texts.at(0));
        table.show();
        finishPainting();
    }
    OurTable source;
    QTableWidget table;
    QVector<Texts> texts;
    int number = 0;
};

} // namespace

void finishPainting()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

double gaugeValue(int step)
{
    constexpr int kRange = 240;
    constexpr int kStride = 7; // has no divisor in common with the range
    return 60 + (kStride * step) % kRange;
}

Work ourTrend(const TrendFeed& feed)
{
    return feed.hasRightScale() ? trendWork<ThreeDynamicChart>(feed)
                                : trendWork<DynamicChart>(feed);
}

template <typename Widget, typename Argument>
static Work workOf(const char* name, const Argument& argument, void (Widget::*step)())
{
    auto widget = std::make_shared<Widget>(argument);
    widget->show();
    finishPainting();
    return {QString::fromLatin1(name), [widget = widget.get(), step] { (widget->*step)(); },
            widget};
}

Work bareTrend(const TrendFeed& feed)
{
    return workOf<BareTrend>("bare painter", feed, &BareTrend::step);
}

Work bareGauge(const QSize& size)
{
    return workOf<BareGauge>("bare painter", size, &BareGauge::step);
}

Work ourFlow(const QSize& size)
{
    return workOf<FlowPage>("ours", size, &FlowPage::step);
}

Work plainFlow(const QSize& size)
{
    return workOf<FlowPage>("full repaint", size, &FlowPage::repaintAll);
}

Work ourGauge(const QSize& size)
{
    auto gauge = std::make_shared<DataChart>();
    gauge->setRadioValue({0, 1, 2}, {150, 250, 300});
    gauge->resize(size);
    gauge->show();
    finishPainting();
    const auto step = [gauge = gauge.get(), number = 0]() mutable {
        gauge->setValue(gaugeValue(++number));
        finishPainting();
    };
    return {QStringLiteral("ours"), step, gauge};
}

Work ourTable()
{
    auto table = std::make_shared<OurTable>();
    const auto step = [table = table.get()] {
        table->form.RefreshRTDataInfo(table->snapshots.at(++table->number % kSnapshots));
        finishPainting();
    };
    return {QStringLiteral("ours"), step, table};
}

Work plainTable()
{
    auto table = std::make_shared<PlainTable>();
    const auto step = [table = table.get()] {
        writePlainly(table->table, table->texts.at(++table->number % kSnapshots));
        finishPainting();
    };
    return {QStringLiteral("plain items"), step, table};
}

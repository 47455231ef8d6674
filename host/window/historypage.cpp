#include "window/historypage.h"

#include "fleet/device.h"
#include "history/devicefacts.h"
#include "window/historybands.h"
#include "window/historycharts.h"
#include "window/historyplot.h"
#include "window/outagetable.h"
#include "window/plainlabel.h"
#include "window/timetext.h"

#include <QAction>
#include <QButtonGroup>
#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QRegularExpression>
#include <QSplitter>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int kPatienceMs = 150; // before a question counts as slow
constexpr int kRowsPerPixel = 2; // asked for: there is as much again at the sides
constexpr int kLeastRows = 600;
constexpr int kMostRows = 2000;
constexpr qint64 kSideShare = 4;       // a quarter of what is shown is asked for at each side
constexpr qint64 kRefreshShare = 1000; // of what is shown, after which it is asked for again
constexpr qint64 kShortestRefreshMs = 2000;
constexpr qint64 kLongestRefreshMs = 5 * kMsPerMinute;
constexpr double kCloser = 0.5;
constexpr int kPanPerClick = 4;    // a quarter of what is shown
constexpr int kOutageMargin = 4;   // the outage is half of what is shown, or less
constexpr int kTableHeight = 104;  // px
constexpr int kChartsHeight = 600; // px, of the whole, before it is as high as it is
constexpr int kMargin = 8;         // px
constexpr int kSpacing = 4;        // px

const QString kBetween = QStringLiteral("  \u00b7  ");

QToolButton* makeButton(const QString& text, const QString& name, const QString& help)
{
    auto* button = new QToolButton;
    button->setText(text);
    button->setAccessibleName(name);
    button->setToolTip(help);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

const QVector<HistoryPage::Span>& HistoryPage::spans()
{
    static const QVector<Span> all{
        {QT_TR_NOOP("1 h"), kMsPerHour},       {QT_TR_NOOP("6 h"), 6 * kMsPerHour},
        {QT_TR_NOOP("Day"), kMsPerDay},        {QT_TR_NOOP("Week"), 7 * kMsPerDay},
        {QT_TR_NOOP("Month"), 30 * kMsPerDay}, {QT_TR_NOOP("Year"), 365 * kMsPerDay},
    };
    return all;
}

HistoryPage::HistoryPage(const Device& device, QWidget* parent)
    : QWidget(parent)
    , m_device(device)
    , m_window(spans().at(0).lengthMs, nowMs())
    , m_spanButtons(new QButtonGroup(this))
    , m_stack(new QStackedWidget)
    , m_message(new PlainLabel)
    , m_info(new QLabel)
    , m_legend(new QLabel)
    , m_splitter(new QSplitter(Qt::Vertical))
    , m_outages(new OutageTable)
{
    setObjectName(QStringLiteral("HistoryPage"));
    m_message->setObjectName(QStringLiteral("HistoryMessage"));
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setMargin(kMargin);
    m_splitter->addWidget(makeCharts());
    m_splitter->addWidget(m_outages);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setChildrenCollapsible(false);
    m_outages->setMinimumHeight(kTableHeight);
    m_splitter->setSizes({kChartsHeight, kTableHeight});
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
    column->setSpacing(kSpacing);
    column->addWidget(makeButtons());
    column->addWidget(makeInfo());
    column->addWidget(m_splitter, 1);
    m_stack->addWidget(content);
    m_stack->addWidget(m_message);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_stack);

    connect(m_outages, &OutageTable::outageChosen, this, [this](qint64 onset, qint64 end) {
        const qint64 margin = std::max((end - onset) / kOutageMargin, TimeWindow::kShortestMs);
        showRange({onset - margin, end + margin});
    });
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatienceMs);
    connect(&m_patience, &QTimer::timeout, this, &HistoryPage::showInfo);
    setReader(nullptr);
}

qint64 HistoryPage::nowMs()
{
    return QDateTime::currentMSecsSinceEpoch();
}

// Building

QWidget* HistoryPage::makeButtons()
{
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kSpacing);
    addSpanButtons(row);
    row->addSpacing(kMargin);
    addMoveButtons(row);
    row->addStretch(1);
    addMenus(row);
    return buttons;
}

void HistoryPage::addSpanButtons(QHBoxLayout* row)
{
    int id = 0;
    for (const Span& span : spans()) {
        auto* button = makeButton(tr(span.title), tr("Show: %1").arg(tr(span.title)), QString());
        button->setCheckable(true);
        m_spanButtons->addButton(button, id++);
        row->addWidget(button);
    }
    m_spanButtons->button(0)->setChecked(true);
    connect(m_spanButtons, &QButtonGroup::idClicked, this,
            [this](int span) { showSpan(spans().at(span).lengthMs); });
}

void HistoryPage::addMoveButtons(QHBoxLayout* row)
{
    const auto add = [row, this](const QString& text, const QString& name, const QString& keys,
                                 const std::function<void()>& act) {
        auto* button = makeButton(text, name, QStringLiteral("%1 (%2)").arg(name, keys));
        connect(button, &QToolButton::clicked, this, act);
        row->addWidget(button);
        return button;
    };
    const auto pan = [this](int way) {
        m_window.pan(way * m_window.lengthMs() / kPanPerClick, nowMs());
        windowChanged();
    };
    add(QStringLiteral("\u25c0"), tr("Earlier"), tr("Left, Page Up"), [pan] { pan(-1); });
    add(QStringLiteral("\u25b6"), tr("Later"), tr("Right, Page Down"), [pan] { pan(1); });
    add(QStringLiteral("\u2212"), tr("Show more time"), QStringLiteral("-"),
        [this] { zoom(1 / kCloser); });
    add(QStringLiteral("+"), tr("Show less time"), QStringLiteral("+"), [this] { zoom(kCloser); });
    m_now = add(tr("Now"), tr("Follow the present"), tr("End"), [this] {
        m_window.showNow(nowMs());
        windowChanged();
    });
    m_now->setCheckable(true);
}

void HistoryPage::addMenus(QHBoxLayout* row)
{
    auto* charts = makeButton(tr("Charts"), tr("Which charts are shown"), QString());
    auto* chartMenu = new QMenu(charts);
    for (const HistoryChart& chart : historyCharts()) {
        QAction* action = chartMenu->addAction(chartTitle(chart));
        action->setCheckable(true);
        action->setChecked(chart.isShownAtFirst);
        connect(action, &QAction::toggled, this, &HistoryPage::showCharts);
        m_chartChoices += action;
    }
    auto* save = makeButton(tr("Save"), tr("Save what is shown"), QString());
    auto* saveMenu = new QMenu(save);
    connect(saveMenu->addAction(tr("As &CSV \u2026")), &QAction::triggered, this,
            [this] { askForPath(QStringLiteral("csv"), &HistoryPage::saveCsv); });
    connect(saveMenu->addAction(tr("As &picture \u2026")), &QAction::triggered, this,
            [this] { askForPath(QStringLiteral("png"), &HistoryPage::savePicture); });
    charts->setMenu(chartMenu);
    save->setMenu(saveMenu);
    for (QToolButton* button : {charts, save}) {
        button->setPopupMode(QToolButton::InstantPopup);
        button->setObjectName(QStringLiteral("HistoryMenuButton"));
        row->addWidget(button);
    }
}

QWidget* HistoryPage::makeInfo()
{
    auto* line = new QWidget;
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    m_info->setObjectName(QStringLiteral("HistoryInfo"));
    m_info->setTextFormat(Qt::PlainText);
    m_info->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    row->addWidget(m_info, 1);
    m_legend->setObjectName(QStringLiteral("HistoryLegend"));
    m_legend->setTextFormat(Qt::RichText); // our own words only
    row->addWidget(m_legend);
    showLegend();
    return line;
}

QWidget* HistoryPage::makeCharts()
{
    auto* charts = new QWidget;
    charts->setObjectName(QStringLiteral("HistoryCharts"));
    m_column = new QVBoxLayout(charts);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    for (int chart = 0; chart < historyCharts().size(); ++chart)
        if (historyCharts().at(chart).isShownAtFirst)
            addPlot(chart);
    return charts;
}

// A plot takes some ms to make, so those that nobody wants are not made.
void HistoryPage::addPlot(int chart)
{
    auto* plot = new HistoryPlot(chart);
    const auto place = std::distance(m_plots.begin(), m_plots.lowerBound(chart));
    m_column->insertWidget(static_cast<int>(place), plot, 1);
    m_plots.insert(chart, plot);
    followPlot(plot);
    plot->setRange(m_window.range());
    if (m_history)
        plot->setHistory(m_history, m_longestStepMs);
}

void HistoryPage::followPlot(HistoryPlot* plot)
{
    connect(plot, &HistoryPlot::timePointed, this, &HistoryPage::readAt);
    connect(plot, &HistoryPlot::pointerLeft, this, [this] { readAt({}); });
    connect(plot, &HistoryPlot::rowsStepped, this, &HistoryPage::stepRows);
    connect(plot, &HistoryPlot::zoomWanted, this, [this](double factor, qint64 around) {
        m_window.zoom(factor, around, nowMs());
        windowChanged();
    });
    connect(plot, &HistoryPlot::closerWanted, this, &HistoryPage::zoom);
    connect(plot, &HistoryPlot::panWanted, this, [this](qint64 by) {
        m_window.pan(by, nowMs());
        windowChanged();
    });
    connect(plot, &HistoryPlot::rangeWanted, this, [this](qint64 from, qint64 to) {
        showRange({from, to});
    });
    connect(plot, &HistoryPlot::nowWanted, this, [this] {
        m_window.showNow(nowMs());
        windowChanged();
    });
    connect(plot, &HistoryPlot::startWanted, this, [this] {
        if (m_history && m_history->extent)
            showRange({m_history->extent->fromMs, m_history->extent->fromMs + m_window.lengthMs()});
    });
}

// Choosing the time

void HistoryPage::showSpan(qint64 lengthMs)
{
    m_window.setLength(lengthMs, nowMs());
    windowChanged();
}

void HistoryPage::showRange(TimeRange range)
{
    m_window.show(range, nowMs());
    windowChanged();
}

// Around what is read, else around the present while it is followed, else around the middle.
void HistoryPage::zoom(double factor)
{
    const TimeRange now = m_window.range();
    const qint64 middle =
        m_window.followsNow() ? now.toMs : now.fromMs + (now.toMs - now.fromMs) / 2;
    m_window.zoom(factor, m_readMs.value_or(middle), nowMs());
    windowChanged();
}

void HistoryPage::windowChanged()
{
    m_outcome.clear();
    m_spanButtons->setExclusive(false);
    for (int span = 0; span < spans().size(); ++span)
        m_spanButtons->button(span)->setChecked(spans().at(span).lengthMs == m_window.lengthMs());
    m_spanButtons->setExclusive(true);
    m_now->setChecked(m_window.followsNow());
    for (HistoryPlot* plot : qAsConst(m_plots))
        plot->setRange(m_window.range());
    showInfo();
    reload();
}

void HistoryPage::refresh()
{
    if (!isVisible())
        return;
    const qint64 pause =
        std::clamp(m_window.lengthMs() / kRefreshShare, kShortestRefreshMs, kLongestRefreshMs);
    const bool isDue = !m_answered.isValid() || m_answered.elapsed() >= pause;
    if (!isDue || (!m_window.followsNow() && m_history && m_error.isEmpty()))
        return;
    m_window.advance(nowMs());
    reload();
}

// Asking

void HistoryPage::setReader(HistoryReader* reader)
{
    m_reader = reader;
    ++m_asked;
    m_isAsking = m_askAgain = false;
    if (!reader)
        return say(
            tr("There is no history here: this desk records none, or its store is not open yet."));
    if (!m_history)
        say(tr("Loading \u2026"));
    if (isVisible())
        reload();
}

DeviceHistory::Wish HistoryPage::wish() const
{
    const TimeRange shown = m_window.range();
    const qint64 side = m_window.lengthMs() / kSideShare;
    DeviceHistory::Wish wish;
    wish.device = storedName(m_device);
    wish.range = {shown.fromMs - side, shown.toMs + side};
    wish.mostRows = std::clamp(width() * kRowsPerPixel, kLeastRows, kMostRows);
    for (const HistoryCurve& curve : historyCurves())
        wish.quantities += curve.quantity;
    return wish;
}

void HistoryPage::reload()
{
    if (!m_reader)
        return;
    m_askAgain = m_isAsking;
    if (m_isAsking)
        return;
    m_isAsking = true;
    m_patience.start();
    const quint64 number = ++m_asked;
    const DeviceHistory::Wish wanted = wish();
    m_reader->ask<DeviceHistory>(
        this, [wanted](HistoryQueries& store) { return DeviceHistory::read(store, wanted); },
        [this, number](const DeviceHistory& history, const QString& error) {
            if (number == m_asked)
                take(history, error);
        });
}

void HistoryPage::take(const DeviceHistory& history, const QString& error)
{
    m_isAsking = false;
    m_answered.start();
    m_error = error;
    if (m_askAgain)
        reload();
    else
        m_patience.stop();
    if (error.isEmpty() && history.isKnown) {
        m_history = std::make_shared<DeviceHistory>(history);
        m_longestStepMs = longestStep(history.series, 1000LL * m_device.settings().pollInterval);
        for (HistoryPlot* plot : qAsConst(m_plots)) {
            plot->setHistory(m_history, m_longestStepMs);
            plot->setRange(m_window.range());
        }
        m_outages->setHistory(history, m_window.range());
    }
    if (m_history)
        say({});
    else if (!error.isEmpty())
        say(tr("The history cannot be read: %1").arg(error));
    else if (m_device.isSimulated())
        say(tr("Nothing is stored of this device. The simulator is recorded only where it stands "
               "in the configuration."));
    else
        say(tr("Nothing is stored of this device yet."));
    showInfo();
    emit shown();
}

void HistoryPage::say(const QString& message)
{
    m_message->setText(message);
    m_stack->setCurrentIndex(message.isEmpty() ? 0 : 1);
    // A note takes the room there is; charts that are not shown need none.
    const auto policy = message.isEmpty() ? QSizePolicy::Preferred : QSizePolicy::Ignored;
    m_stack->widget(0)->setSizePolicy(policy, policy);
}

QString HistoryPage::message() const
{
    return m_message->text();
}

// Showing

void HistoryPage::showCharts()
{
    HistoryPlot* last = nullptr;
    for (int chart = 0; chart < m_chartChoices.size(); ++chart) {
        const bool wanted = m_chartChoices.at(chart)->isChecked();
        if (wanted && !m_plots.contains(chart))
            addPlot(chart);
        if (HistoryPlot* plot = m_plots.value(chart))
            plot->setVisible(wanted);
        last = wanted ? m_plots.value(chart) : last;
    }
    for (HistoryPlot* plot : qAsConst(m_plots))
        plot->showTimes(plot == last);
}

void HistoryPage::readAt(std::optional<qint64> timeMs)
{
    m_readMs = timeMs;
    for (HistoryPlot* plot : qAsConst(m_plots))
        plot->readAt(timeMs);
    showInfo();
}

void HistoryPage::stepRows(int rows)
{
    if (!m_history || m_history->series.timeMs.isEmpty())
        return;
    const QVector<qint64>& times = m_history->series.timeMs;
    const TimeRange shown = m_window.range();
    const auto from = m_readMs.value_or(shown.toMs);
    const auto at = std::upper_bound(times.constBegin(), times.constEnd(), from);
    const int row = static_cast<int>(at - times.constBegin()) - 1 + rows;
    readAt(qBound(shown.fromMs, times.at(qBound(0, row, times.size() - 1)), shown.toMs));
}

QString HistoryPage::entriesAt(qint64 timeMs) const
{
    if (!m_history)
        return {};
    // A mark is met within the width that it is drawn with.
    const qint64 reach = m_window.lengthMs() * HistoryBands::kMarkSize / std::max(width(), 1);
    QStringList texts;
    for (const JournalEntry& entry : m_history->bands)
        if (timeMs >= entry.onsetMs - reach / 2 &&
            timeMs <= knownEnd(entry, m_history->extent) + reach / 2)
            texts += tr("%1 for %2")
                         .arg(entry.text,
                              durationText(knownEnd(entry, m_history->extent) - entry.onsetMs));
    for (const JournalEntry& entry : m_history->marks)
        if (qAbs(entry.onsetMs - timeMs) <= reach / 2)
            texts += entry.message.isEmpty()
                         ? entry.text
                         : QStringLiteral("%1: %2").arg(entry.text, entry.message);
    return texts.join(kBetween);
}

QString HistoryPage::remark() const
{
    if (!m_error.isEmpty())
        return tr("The history cannot be read: %1").arg(m_error);
    if (m_isAsking && !m_patience.isActive())
        return tr("Loading \u2026");
    if (!m_outcome.isEmpty())
        return m_outcome;
    if (m_history && m_history->series.timeMs.isEmpty())
        return tr("Nothing is stored of this time");
    return m_history && m_history->isCut ? tr("Only the latest entries of the journal are shown")
                                         : QString();
}

void HistoryPage::showInfo()
{
    const TimeRange shown = m_window.range();
    QStringList parts{m_readMs ? localTimeText(*m_readMs)
                               : QStringLiteral("%1 \u2013 %2")
                                     .arg(localTimeText(shown.fromMs), localTimeText(shown.toMs)),
                      m_readMs ? entriesAt(*m_readMs) : QString(), remark()};
    parts.removeAll(QString());
    const QString text = parts.join(kBetween);
    m_info->setText(text);
    m_info->setToolTip(text.toHtmlEscaped());
}

void HistoryPage::showLegend()
{
    constexpr struct {
        JournalKind kind;
        const char* mark;
        const char* text;
    } rows[] = {{JournalKind::Outage, "\u25a0", QT_TR_NOOP("on battery")},
                {JournalKind::Bypass, "\u25a0", QT_TR_NOOP("on bypass")},
                {JournalKind::Link, "\u25a8", QT_TR_NOOP("not reachable")}};
    QStringList parts;
    for (const auto& row : rows)
        parts += QStringLiteral("<span style=\"color:%1\">%2</span> %3")
                     .arg(HistoryBands::color(row.kind, palette()).name(),
                          QString::fromUtf8(row.mark), tr(row.text));
    parts += tr("\u25b4 journal");
    m_legend->setText(parts.join(QStringLiteral("&nbsp;&nbsp; ")));
}

void HistoryPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showLegend();
}

void HistoryPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showCharts();
    m_window.advance(nowMs());
    windowChanged();
}

void HistoryPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_history)
        reload();
}

// Files

// The device and the first day that is shown; letters that mean something in a path become dashes.
QString HistoryPage::fileName(const QString& suffix) const
{
    static const QRegularExpression special(QStringLiteral("[^\\w .()-]+"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    const QDateTime day = QDateTime::fromMSecsSinceEpoch(m_window.range().fromMs);
    return QStringLiteral("%1 %2.%3")
        .arg(m_device.name().replace(special, QStringLiteral("-")),
             day.toString(QStringLiteral("yyyy-MM-dd")), suffix);
}

void HistoryPage::askForPath(const QString& suffix, void (HistoryPage::*save)(const QString&))
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto* dialog = new QFileDialog(this, tr("Save the history"),
                                   QDir(documents).exists() ? documents : QDir::homePath());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(suffix);
    dialog->setNameFilter(QStringLiteral("*.") + suffix);
    dialog->selectFile(fileName(suffix));
    connect(dialog, &QFileDialog::fileSelected, this, save);
    dialog->open();
}

void HistoryPage::saveCsv(const QString& path)
{
    if (!m_reader)
        return;
    DeviceHistory::Wish wanted = wish();
    wanted.range = m_window.range();
    m_outcome = tr("Saving \u2026");
    showInfo();
    m_reader->ask<QString>(
        this, [wanted, path](HistoryQueries& store) { return writeCsv(store, wanted, path); },
        [this, path](const QString& fault, const QString& error) {
            const QString reason = error.isEmpty() ? fault : error;
            m_outcome =
                reason.isEmpty() ? tr("Saved as %1").arg(path) : tr("Not saved: %1").arg(reason);
            showInfo();
        });
}

void HistoryPage::savePicture(const QString& path)
{
    const QWidget* charts = m_splitter->widget(0);
    const int lineHeight = fontMetrics().height() + kMargin;
    QImage picture(charts->size() + QSize(2 * kMargin, lineHeight + kMargin), QImage::Format_RGB32);
    picture.fill(palette().color(QPalette::Window));
    QPainter painter(&picture);
    const TimeRange shown = m_window.range();
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(
        QRect(kMargin, 0, picture.width() - 2 * kMargin, lineHeight),
        Qt::AlignVCenter | Qt::TextSingleLine,
        QStringLiteral("%1   %2 \u2013 %3")
            .arg(m_device.name(), localTimeText(shown.fromMs), localTimeText(shown.toMs)));
    m_splitter->widget(0)->render(&painter, QPoint(kMargin, lineHeight));
    painter.end();
    m_outcome = picture.save(path, "PNG") ? tr("Saved as %1").arg(path)
                                          : tr("Not saved: %1 cannot be written").arg(path);
    showInfo();
}

#include "window/overviewpage.h"

#include "window/devicelistmodel.h"
#include "window/devicetiledelegate.h"
#include "window/tileview.h"

#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

// The first that finds room is used: what it says counts more than its size.
struct OverviewPage::FormRow {
    DeviceTileDelegate::Form form;
    double least;   // scale, times the page's least; below, it is no longer read in passing
    double largest; // times the page's largest scale; beyond, there is room for another form
    double growth;  // times its height, where room is left: words that had none are shown
};

const OverviewPage::FormRow OverviewPage::kForms[] = {
    {DeviceTileDelegate::Form::Full, 0.85, 1, 0},
    {DeviceTileDelegate::Form::Brief, 0.9, 1.2, 0.4},
    {DeviceTileDelegate::Form::Compact, 0.85, 1.3, 1},
};

OverviewPage::OverviewPage(DeviceListModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_sorted(new DeviceSortModel(this))
    , m_delegate(new DeviceTileDelegate(this))
    , m_tiles(new TileView(*m_sorted))
    , m_counts(new QLabel)
    , m_nothing(new QLabel)
{
    m_sorted->setSourceModel(&model);
    m_sorted->setOrder(DeviceSortModel::Order::WorstFirst);
    m_counts->setObjectName(QStringLiteral("OverviewCounts"));
    setUpTiles();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 10, 12, 0);
    column->addWidget(m_counts);
    column->addWidget(m_tiles, 1);
    m_nothing->setTextFormat(Qt::PlainText);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setObjectName(QStringLiteral("NothingMatches"));
    m_nothing->hide();
    column->addWidget(m_nothing, 1);
    connect(&model, &DeviceListModel::refreshed, this, &OverviewPage::showCounts);
    connect(&model, &DeviceListModel::refreshed, this, &OverviewPage::fitTilesToSections);
    showCounts();
}

void OverviewPage::setUpTiles()
{
    m_tiles->setObjectName(QStringLiteral("OverviewTiles"));
    m_tiles->setAccessibleName(tr("All devices"));
    m_tiles->setModel(m_sorted);
    m_tiles->setItemDelegate(m_delegate);
    m_tiles->setSelectionMode(QAbstractItemView::NoSelection);
    m_tiles->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_tiles->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_tiles->setFrameShape(QFrame::NoFrame);
    m_tiles->setMouseTracking(true);
    const auto choose = [this](const QModelIndex& index) {
        if (Device* device = DeviceListModel::deviceAt(index))
            emit deviceChosen(device);
    };
    connect(m_tiles, &QListView::clicked, this, choose);
    connect(m_tiles, &QListView::activated, this, choose);
}

void OverviewPage::refreshAge()
{
    if (isVisible())
        m_tiles->viewport()->update();
}

void OverviewPage::setCountsShown(bool shown)
{
    m_counts->setVisible(shown);
}

void OverviewPage::showNextRows()
{
    QScrollBar* bar = m_tiles->verticalScrollBar();
    // Whole rows: a tile that was cut off at the bottom comes again.
    const int rows =
        std::max(m_tiles->viewport()->height() / std::max(m_tiles->sizeHintForRow(0), 1), 1);
    const int step = rows * m_tiles->sizeHintForRow(0);
    bar->setValue(bar->value() >= bar->maximum() ? bar->minimum() : bar->value() + step);
}

void OverviewPage::showCounts()
{
    m_counts->setText(m_model.countsText());
}

void OverviewPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitTiles();
}

void OverviewPage::setScales(double least, double largest)
{
    m_leastScale = least;
    m_largestScale = largest;
    fitTiles();
}

void OverviewPage::showGroups(bool on)
{
    m_sorted->setOrder(on ? DeviceSortModel::Order::WorstOfEachGroup
                          : DeviceSortModel::Order::WorstFirst);
    fitTiles();
}

void OverviewPage::fitTilesToSections()
{
    if (m_sorted->sections() != m_fitted)
        fitTiles();
}

// Tiles of one row are equally wide, and as large as still shows all of them. Where full ones do
// not find room they are brief or small ones, and where even these do not, the page scrolls.
void OverviewPage::fitTiles()
{
    m_fitted = m_sorted->sections();
    for (const FormRow& row : kForms) {
        int columns = 0;
        const double scale = bestScale(row, columns);
        setTiles(row, columns, std::max(scale, m_leastScale * row.least));
        if (scale > 0)
            break;
    }
    m_tiles->doItemsLayout();
}

// Of all numbers of columns that of the largest tiles; 0 where none finds room.
double OverviewPage::bestScale(const FormRow& row, int& columns) const
{
    constexpr double kWidest = 1.5; // times its width at that scale; beyond, a tile looks empty
    const QSize least = DeviceTileDelegate::leastSize(row.form);
    const double smallest = m_leastScale * row.least;
    const double largest = m_largestScale * row.largest;
    const int most = std::max(static_cast<int>(roomForTiles() / (least.width() * smallest)), 1);
    columns = most;
    double best = 0;
    for (int tried = 1; tried <= most; ++tried) {
        if (tried < most && roomForTiles() / tried > least.width() * largest * kWidest)
            continue;
        const double widest = static_cast<double>(roomForTiles()) / tried / least.width();
        const double fits =
            scaleThatFits(tried, least.height(), smallest, std::min(widest, largest));
        if (fits > best) {
            columns = tried;
            best = fits;
        }
    }
    return best;
}

void OverviewPage::setTiles(const FormRow& row, int columns, double scale)
{
    const auto heightAt = [&](int tile) {
        return TileView::heightOf(m_fitted, columns, tile, m_tiles->fontMetrics());
    };
    const int least = static_cast<int>(DeviceTileDelegate::leastSize(row.form).height() * scale);
    const int rows = std::max(heightAt(1) - heightAt(0), 1);
    const int left = std::max(m_tiles->height() - heightAt(least), 0) / rows;
    const int height = least + std::min(left, static_cast<int>(least * row.growth));
    m_delegate->setTile(row.form, {roomForTiles() / columns, height}, scale);
}

int OverviewPage::roomForTiles() const
{
    return m_tiles->width() - m_tiles->verticalScrollBar()->sizeHint().width() - 2;
}

// The largest scale at which all tiles find room in so many columns; 0 where there is none.
double OverviewPage::scaleThatFits(int columns, int height, double least, double largest) const
{
    constexpr double kStep = 0.05;
    const auto fits = [&](double scale) {
        return TileView::heightOf(m_fitted, columns, static_cast<int>(height * scale),
                                  m_tiles->fontMetrics()) <= m_tiles->height();
    };
    for (double scale = largest; scale > least; scale -= kStep)
        if (fits(scale))
            return scale;
    return fits(least) ? least : 0;
}

void OverviewPage::setFilter(const QString& text)
{
    m_sorted->setFilterFixedString(text);
    fitTilesToSections();
    const bool nothing = m_model.rowCount() > 0 && m_sorted->rowCount() == 0;
    m_nothing->setVisible(nothing);
    m_tiles->setVisible(!nothing);
    if (nothing)
        m_nothing->setText(tr("Nothing matches \u201c%1\u201d.").arg(text));
}

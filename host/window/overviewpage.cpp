#include "window/overviewpage.h"

#include "window/devicelistmodel.h"
#include "window/devicesortmodel.h"
#include "window/devicetiledelegate.h"

#include <QLabel>
#include <QListView>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

OverviewPage::OverviewPage(DeviceListModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_sorted(new DeviceSortModel(this))
    , m_delegate(new DeviceTileDelegate(this))
    , m_tiles(new QListView)
    , m_counts(new QLabel)
    , m_nothing(new QLabel)
{
    m_sorted->setSourceModel(&model);
    m_sorted->setWorstFirst(true);
    m_counts->setObjectName(QStringLiteral("OverviewCounts"));
    m_tiles->setObjectName(QStringLiteral("OverviewTiles"));
    m_tiles->setAccessibleName(tr("All devices"));
    m_tiles->setModel(m_sorted);
    m_tiles->setItemDelegate(m_delegate);
    m_tiles->setViewMode(QListView::IconMode);
    m_tiles->setMovement(QListView::Static);
    m_tiles->setResizeMode(QListView::Adjust);
    m_tiles->setUniformItemSizes(true);
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
    connect(&model, &DeviceListModel::refreshed, this, &OverviewPage::fitTilesToCount);
    showCounts();
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

void OverviewPage::setLargestScale(double scale)
{
    m_largestScale = scale;
    fitTiles();
}

void OverviewPage::fitTilesToCount()
{
    if (m_sorted->rowCount() == m_fittedCount)
        return;
    m_fittedCount = m_sorted->rowCount();
    fitTiles();
}

// Tiles of one row are equally wide, and as large as still shows all of them. Where full ones do
// not find room they are small ones, and where even these do not, the page scrolls.
void OverviewPage::fitTiles()
{
    using Form = DeviceTileDelegate::Form;
    constexpr double kCompactScale = 1.8; // beyond, there is room for full tiles
    if (!fitTilesOf(static_cast<int>(Form::Full), m_largestScale))
        fitTilesOf(static_cast<int>(Form::Compact), m_largestScale * kCompactScale);
    m_tiles->doItemsLayout();
}

bool OverviewPage::fitTilesOf(int form, double largestScale)
{
    const auto tileForm = static_cast<DeviceTileDelegate::Form>(form);
    const QSize least = DeviceTileDelegate::leastSize(tileForm);
    const int room = m_tiles->width() - m_tiles->verticalScrollBar()->sizeHint().width() - 2;
    const int most = std::max(room / least.width(), 1);
    const int count = std::max(m_sorted->rowCount(), 1);
    const auto scaleOf = [&](int columns) {
        const double fits = static_cast<double>(room) / columns / least.width();
        return std::clamp(fits, 1.0, largestScale);
    };
    const auto isRoomFor = [&](int columns) {
        const int rows = (count + columns - 1) / columns;
        return rows * static_cast<int>(least.height() * scaleOf(columns)) <= m_tiles->height();
    };
    int columns = 1;
    while (columns < most) {
        const bool tooWide = room / columns > least.width() * largestScale * 1.5;
        if (!tooWide && isRoomFor(columns))
            break;
        ++columns;
    }
    m_delegate->setTile(tileForm, room / columns, scaleOf(columns));
    return isRoomFor(columns);
}

void OverviewPage::setFilter(const QString& text)
{
    m_sorted->setFilterFixedString(text);
    fitTilesToCount();
    const bool nothing = m_model.rowCount() > 0 && m_sorted->rowCount() == 0;
    m_nothing->setVisible(nothing);
    m_tiles->setVisible(!nothing);
    if (nothing)
        m_nothing->setText(tr("Nothing matches \u201c%1\u201d.").arg(text));
}

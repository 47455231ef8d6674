#include "window/outagetable.h"

#include "window/timetext.h"

#include <QHeaderView>

namespace {

constexpr int kRowPadding = 6; // px

} // namespace

OutageTable::OutageTable(QWidget* parent)
    : QTableWidget(parent)
{
    setObjectName(QStringLiteral("OutageTable"));
    setAccessibleName(tr("Outages"));
    setToolTip(tr("Double-click or Enter shows the outage in the charts."));
    const QStringList titles{tr("Mains lost"), tr("Mains back"), tr("Duration"),
                             tr("Lowest charge")};
    setColumnCount(titles.size());
    setHorizontalHeaderLabels(titles);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(this, &QTableWidget::itemActivated, this, [this](const QTableWidgetItem* item) {
        emit outageChosen(m_rows.at(item->row()).onsetMs, m_rows.at(item->row()).endMs);
    });
}

void OutageTable::setCell(int row, Column column, const QString& text)
{
    auto* cell = item(row, column);
    if (!cell)
        setItem(row, column, cell = new QTableWidgetItem);
    if (cell->text() != text)
        cell->setText(text);
}

void OutageTable::setHistory(const DeviceHistory& history, TimeRange range)
{
    const int current = currentRow();
    const qint64 chosen = current >= 0 ? m_rows.at(current).onsetMs : -1;
    m_rows.clear();
    for (const JournalEntry& entry : history.bands) {
        const qint64 end = knownEnd(entry, history.extent);
        if (entry.kind != JournalKind::Outage || entry.onsetMs >= range.toMs || end < range.fromMs)
            continue;
        const int row = m_rows.size();
        m_rows += {entry.onsetMs, end};
        if (rowCount() <= row)
            setRowCount(row + 1);
        setCell(row, Onset, localTimeText(entry.onsetMs));
        setCell(row, End, entry.endMs ? localTimeText(*entry.endMs) : tr("still on battery"));
        setCell(row, Duration, durationText(end - entry.onsetMs));
        const auto charge = lowestCharge(entry, history);
        setCell(row, LowestCharge, charge ? tr("%1 %").arg(qRound(*charge)) : QStringLiteral("--"));
        if (entry.onsetMs == chosen && row != current)
            setCurrentCell(row, currentColumn());
    }
    setRowCount(m_rows.size());
}

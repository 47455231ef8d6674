#include "window/clipboardtext.h"

#include "window/devicelistmodel.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QTableWidget>

#include <algorithm>

namespace {

QString cellText(const QModelIndex& index)
{
    const bool device = index.data(DeviceListModel::DeviceRole).isValid();
    return index.data(device ? Qt::AccessibleTextRole : Qt::DisplayRole)
        .toString()
        .replace(QLatin1Char('\t'), QLatin1Char(' '));
}

QString tableText(QModelIndexList cells)
{
    std::sort(cells.begin(), cells.end());
    QString text;
    int row = -1;
    for (const QModelIndex& cell : qAsConst(cells)) {
        if (row >= 0)
            text += QLatin1Char(cell.row() == row ? '\t' : '\n');
        row = cell.row();
        text += cellText(cell);
    }
    return text;
}

} // namespace

QString selectedText(const QAbstractItemView* view)
{
    return tableText(view->selectionModel()->selectedIndexes());
}

QString shownValues(const QWidget* page)
{
    QStringList lines;
    QString name;
    for (const QLabel* label : page->findChildren<QLabel*>()) {
        if (!label->isVisible())
            continue;
        if (label->objectName() == QLatin1String("PanalBodyKeyName"))
            name = label->text();
        else if (label->objectName() == QLatin1String("PanalBodyKeyValue"))
            lines << name + QLatin1Char('\t') + label->text();
    }
    for (const QTableWidget* table : page->findChildren<QTableWidget*>()) {
        if (!table->isVisible())
            continue;
        QModelIndexList cells;
        for (int row = 0; row < table->rowCount(); ++row)
            for (int column = 0; column < table->columnCount(); ++column)
                if (!table->isColumnHidden(column) && !table->isRowHidden(row))
                    cells << table->model()->index(row, column);
        lines << tableText(cells);
    }
    return lines.join(QLatin1Char('\n'));
}

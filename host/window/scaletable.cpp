#include "window/scaletable.h"

#include "reading/readingscale.h"

#include <QHeaderView>
#include <QLocale>

namespace {

enum Column { QuantityColumn, FactorColumn, ColumnCount };

// Empty: no factor. Takes the comma of half the world for the point it stands for.
std::optional<double> factorOf(const QString& text)
{
    if (text.trimmed().isEmpty())
        return 1.0;
    bool ok = false;
    const double factor = text.trimmed().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
    return ok && isScaleFactor(factor) ? std::optional<double>(factor) : std::nullopt;
}

} // namespace

ScaleTable::ScaleTable(QWidget* parent)
    : QTableWidget(parent)
{
    const QStringList names = scaleNames();
    setRowCount(names.size());
    setColumnCount(ColumnCount);
    setHorizontalHeaderLabels({tr("Quantity"), tr("Factor")});
    setAccessibleName(tr("Correction factors"));
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    horizontalHeader()->setSectionResizeMode(QuantityColumn, QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::AllEditTriggers);
    setTabKeyNavigation(false);
    for (int row = 0; row < names.size(); ++row) {
        auto* name = new QTableWidgetItem(names.at(row));
        name->setFlags(Qt::ItemIsEnabled);
        setItem(row, QuantityColumn, name);
        setItem(row, FactorColumn, new QTableWidgetItem);
    }
    setCurrentCell(0, FactorColumn, QItemSelectionModel::NoUpdate);
    connect(this, &QTableWidget::itemChanged, this, &ScaleTable::edited);
}

void ScaleTable::setScales(const QMap<QString, double>& scales)
{
    for (int row = 0; row < rowCount(); ++row) {
        const auto found = scales.find(item(row, QuantityColumn)->text());
        item(row, FactorColumn)
            ->setText(found == scales.end()
                          ? QString()
                          : QString::number(*found, 'g', QLocale::FloatingPointShortest));
    }
}

QMap<QString, double> ScaleTable::scales() const
{
    QMap<QString, double> scales;
    for (int row = 0; row < rowCount(); ++row) {
        const double factor = factorOf(item(row, FactorColumn)->text()).value_or(1.0);
        if (factor != 1.0)
            scales.insert(item(row, QuantityColumn)->text(), factor);
    }
    return scales;
}

QString ScaleTable::error() const
{
    for (int row = 0; row < rowCount(); ++row)
        if (!factorOf(item(row, FactorColumn)->text()))
            return tr("The factor of %1 is a number above 0, as 0.1.")
                .arg(item(row, QuantityColumn)->text());
    return {};
}

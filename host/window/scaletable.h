#ifndef SCALETABLE_H
#define SCALETABLE_H

// Correction factors by quantity; an empty factor is 1.
// May touch: Qt Widgets, the names of quantities.

#include <QMap>
#include <QTableWidget>

class ScaleTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit ScaleTable(QWidget* parent = nullptr);

    void setScales(const QMap<QString, double>& scales);
    QMap<QString, double> scales() const; // without those that are 1 or no factor
    QString error() const;                // the first that is no factor; empty: none

signals:
    void edited();
};

#endif // SCALETABLE_H

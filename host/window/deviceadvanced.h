#ifndef DEVICEADVANCED_H
#define DEVICEADVANCED_H

// Limits, delays and correction factors of one device: what most devices never need.
// May touch: Qt Widgets, settings and their ranges.

#include "connectors/devicesettings.h"

#include <QVector>
#include <QWidget>

class QCheckBox;
class QFormLayout;
class QSpinBox;
class ScaleTable;

class DeviceAdvanced : public QWidget
{
    Q_OBJECT

public:
    explicit DeviceAdvanced(QWidget* parent = nullptr);

    void showSettings(const DeviceSettings& settings);
    void readSettings(DeviceSettings& settings) const;
    // Rows that only some kinds have.
    void showRowsOf(DeviceAddress::Scheme scheme);
    QString error() const;

    // A field for a number of the configuration, with its range and unit.
    static QSpinBox* makeNumberField(const QString& key);

signals:
    void edited();

private:
    QFormLayout* m_form;
    QVector<QSpinBox*> m_numbers;
    QCheckBox* m_wholeUps;
    ScaleTable* m_scales;
};

#endif // DEVICEADVANCED_H

#ifndef DEVICEHEADING_H
#define DEVICEHEADING_H

// The line above a device's views: condition and since when, battery, load, age of the data.
// May touch: devices.

#include "fleet/device.h"

#include <QFrame>

class ElidedLabel;
class QLabel;

class DeviceHeading : public QFrame
{
    Q_OBJECT

public:
    explicit DeviceHeading(QWidget* parent = nullptr);

    void show(const Device& device);

private:
    QLabel* addFigure(const QString& caption);

    ElidedLabel* m_name;
    ElidedLabel* m_condition;
    QString m_conditionColor;
    ElidedLabel* m_since;
    ElidedLabel* m_age;
    ElidedLabel* m_notes;
    QLabel* m_charge;
    QLabel* m_runtime;
    QLabel* m_load;
};

#endif // DEVICEHEADING_H

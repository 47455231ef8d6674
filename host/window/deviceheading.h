#ifndef DEVICEHEADING_H
#define DEVICEHEADING_H

// The line above a device's views: condition and since when, battery, load, age of the data.
// May touch: devices.

#include "fleet/device.h"

#include <QFrame>

class PlainLabel;
class QLabel;

class DeviceHeading : public QFrame
{
    Q_OBJECT

public:
    explicit DeviceHeading(QWidget* parent = nullptr);

    void show(const Device& device);

private:
    QLabel* addFigure(const QString& caption);

    PlainLabel* m_name;
    PlainLabel* m_condition;
    QString m_conditionColor;
    PlainLabel* m_since;
    PlainLabel* m_age;
    PlainLabel* m_notes;
    QLabel* m_charge;
    QLabel* m_runtime;
    QLabel* m_load;
};

#endif // DEVICEHEADING_H

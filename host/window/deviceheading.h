#ifndef DEVICEHEADING_H
#define DEVICEHEADING_H

// The line above a device's views: condition and since when, what is wrong, battery, load, age of
// the data. What the device does not report stands behind an (i).
// May touch: devices, the library's label.

#include "fleet/device.h"

#include <QFrame>

#include <array>

class ElidedLabel;
class QLabel;
class QToolButton;
class QVBoxLayout;

class DeviceHeading : public QFrame
{
    Q_OBJECT

public:
    explicit DeviceHeading(QWidget* parent = nullptr);

    void show(const Device& device);
    // What is shown is of the past: it has no age.
    void setReplay() { m_isReplay = true; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    ElidedLabel* addLine(QLayout* layout, const char* name);
    QLayout* makeStateLine();
    QLayout* makeAgeLine();
    QWidget* makeFigure(QLabel*& figure, const QString& caption);
    void fitWidth();
    void showCondition(const Condition& condition);
    void showFigures(const Device& device);
    void showNotes(const UpsReading* reading);

    ElidedLabel* m_name;
    ElidedLabel* m_condition;
    ElidedLabel* m_since;
    QLabel* m_alarms;
    ElidedLabel* m_age;
    QToolButton* m_notes;
    std::array<QLabel*, 3> m_figures;
    bool m_isReplay = false;
};

#endif // DEVICEHEADING_H

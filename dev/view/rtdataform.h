#ifndef RTDATAFORM_H
#define RTDATAFORM_H

// One table of all live values of a UPS, single-phase or three-phase row by row. It words and
// scales its values on its own; the detail page differs on purpose.
// May touch: the real-time block and valuetext.

#include <devview/devview_export.h>

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <QWidget>

class QTableWidgetItem;
class RealTimeBlock;
class Ui_RTDataForm;

class DEVVIEW_EXPORT RTDataForm : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString currentName READ getCurrentName WRITE setCurrentName)

public:
    // Labels without values; the first refresh fills them in.
    explicit RTDataForm(QWidget* parent = nullptr);
    ~RTDataForm() override;

    // For hosts that want the short table: initial values, and times, currents and powers hidden
    // for good (a refresh does not show them again).
    void InitRTData();
    // Shows the values of a snapshot without any key.
    void InitRTDataFormInfo();
    // Voltages in V, powers in W, battery temperature in whole degrees (0 to 100, else "--");
    // currents, frequencies and battery voltage in tenths.
    void RefreshRTDataInfo(QMap<int, QVariant> data);
    // Stored for the host.
    void setCurrentName(QString name);
    QString getCurrentName() const { return currentName; }

protected:
    Ui_RTDataForm* ui;
    bool isSinglePhase; // by the last snapshot's input
    QString currentName;
    QVector<QString> bat_fault;
    QStringList rtDataArray;
    QVector<QString> supply_mode;

private:
    void setupContentsInfo();
    void Show_RTData_View(QMap<int, QVariant> data);
    void setText(int row, int column, const QString& text);
    void setValue(int row, const QString& text);
    void setItem(int row, int column, QTableWidgetItem* item);
    void markPhaseColumns(bool shown);
};

#endif // RTDATAFORM_H

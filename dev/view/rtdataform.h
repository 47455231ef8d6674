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

/// 22 live values as a table: battery, input, output, bypass. For hosts that want them without a
/// diagram, or to be read aloud or copied.
///
/// Input, output and bypass each show three lines ("R/S/T") where their line count is exactly 3,
/// else line A. Units are those of _UPS_REG_ENUM with powers in **W** and battery temperature in
/// **whole degrees**. A battery status of 1 to 4 has its word, any other is "Normal"; an output
/// source of 1 to 7 has its word, any other is "None supply".
/// \image html table.png "The table in the desk"
class DEVVIEW_EXPORT RTDataForm : public QWidget
{
    Q_OBJECT
    /// Stored for the host.
    Q_PROPERTY(QString currentName READ getCurrentName WRITE setCurrentName)

public:
    /// Labels without values; the first refresh fills them in.
    explicit RTDataForm(QWidget* parent = nullptr);
    ~RTDataForm() override;

    /// For hosts that want the short table: initial values ("Normal", 0), and times, currents and
    /// powers hidden for good (a refresh does not show them again).
    void InitRTData();
    /// Shows the values of a snapshot without any key.
    void InitRTDataFormInfo();
    /// Shows a snapshot: voltages in V, powers in W (the `_Hi` words), battery temperature in whole
    /// degrees (0 to 100, else `--`); currents, frequencies and battery voltage in tenths. Missing
    /// keys read 0.
    void RefreshRTDataInfo(QMap<int, QVariant> data);
    /// Stored for the host; shown nowhere.
    void setCurrentName(QString name);
    /// What setCurrentName() was given.
    QString getCurrentName() const { return currentName; }

protected:
    Ui_RTDataForm* ui;            ///< the form around the table; owned
    bool isSinglePhase;           ///< by the last snapshot's input; true before the first
    QString currentName;          ///< what setCurrentName() was given
    QVector<QString> bat_fault;   ///< words for battery status 1 to 4, translated
    QStringList rtDataArray;      ///< 33 row labels, translated
    QVector<QString> supply_mode; ///< words for output source 1 to 7, translated

private:
    void setupContentsInfo();
    void Show_RTData_View(QMap<int, QVariant> data);
    void setText(int row, int column, const QString& text);
    void setValue(int row, const QString& text);
    void setItem(int row, int column, QTableWidgetItem* item);
    void markPhaseColumns(bool shown);
};

#endif // RTDATAFORM_H

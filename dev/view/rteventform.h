#ifndef RTEVENTFORM_H
#define RTEVENTFORM_H

// The alarm page: which alarms are raised now, and since when this page has seen them.
// May touch: Qt and the data keys; keeps no history and posts nothing.

#include <devview/devview_export.h>

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QVector>
#include <QWidget>

class QTableWidget;
class Ui_RTEventForm;

class DEVVIEW_EXPORT RTEventForm : public QWidget
{
    Q_OBJECT

public:
    explicit RTEventForm(QWidget* parent = nullptr);
    ~RTEventForm() override;

    // Shows the alarms of one snapshot (keys 2000 to 2053: 1 raised, 0 or missing cleared), one row
    // each in the order of the keys. The page knows only the snapshots it is given: the onset is
    // the local time of the first one that had the alarm raised, and an alarm that came and went
    // while the page was not shown is never seen. A value other than 0 and 1 hides the row and
    // keeps the onset. The selection is dropped.
    void RefreshRTEventInfo(QMap<int, QVariant> snapshot);
    void Show_RTEvent_View(QMap<int, QVariant> snapshot);
    // Only stores the name; alarms already listed stay.
    void setCurrentName(QString name);

    // Called when the page is about to be shown, and once at construction. Both do nothing here.
    void InitRTEventFormInfo();
    void InitRTEvent();

protected:
    Ui_RTEventForm* ui;
    QVector<QString> stateArray; // "Yes", "No": kept for hosts that derive
    QList<int> state_list;       // kept for hosts that derive; always empty
    // Onset of every raised alarm, by data key minus 2000; also of those that have no text.
    QMap<int, QDateTime> alarmTable;
    QString currentName;
    QList<QString> eventLogArray_buff; // 54 texts while raised, then their 54 texts when cleared
    QTableWidget* table_alarm_record = nullptr;

    void initTable();

private:
    void showAlarm(int position);
};

#endif // RTEVENTFORM_H

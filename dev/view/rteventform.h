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

/// The alarm page: one row for each alarm that is raised, with the time of its onset.
///
/// The page knows only the snapshots it is given. An onset is the local time of the first one that
/// had the alarm raised, so an alarm that came and went while ChildForm showed another page is
/// never seen, and one found on opening the page began, for it, just then. It keeps no history:
/// what is cleared disappears. Style sheets find it as `#AlarmTable` with the table `#basicTable`.
/// \image html rt-alarm-outage.png "The alarms of a UPS on battery"
class DEVVIEW_EXPORT RTEventForm : public QWidget
{
    Q_OBJECT

public:
    /// An empty table with its texts in the language of this moment.
    explicit RTEventForm(QWidget* parent = nullptr);
    ~RTEventForm() override;

    /// Shows the alarms of one snapshot (keys 2000 to 2053: 1 raised, 0 or missing cleared), one
    /// row each in the order of the keys; their texts stand in _UPS_REG_ENUM. A value other than 0
    /// and 1 hides the row and keeps the onset. The selection is dropped.
    void RefreshRTEventInfo(QMap<int, QVariant> snapshot);
    /// The same; what RefreshRTEventInfo() calls.
    void Show_RTEvent_View(QMap<int, QVariant> snapshot);
    /// Only stores the name; alarms already listed stay, with their onsets.
    void setCurrentName(QString name);

    void InitRTEventFormInfo(); ///< called when the page is about to be shown; does nothing here
    void InitRTEvent();         ///< called once at construction; does nothing here

protected:
    Ui_RTEventForm* ui;          ///< the form around the table; owned
    QVector<QString> stateArray; ///< "Yes", "No": kept for hosts that derive
    QList<int> state_list;       ///< kept for hosts that derive; always empty
    /// Onset of every raised alarm, by data key minus 2000; also of those that have no text.
    QMap<int, QDateTime> alarmTable;
    QString currentName; ///< what setCurrentName() was given
    /// 54 texts while raised, by data key minus 2000, then their 54 texts when cleared, which the
    /// page does not show; translated.
    QList<QString> eventLogArray_buff;
    /// "Data/Time" ("yyyy-MM-dd HH:mm:ss", local) and "Event description"; read-only.
    QTableWidget* table_alarm_record = nullptr;

    void initTable(); ///< builds the table; called once

private:
    void showAlarm(int position);
};

#endif // RTEVENTFORM_H

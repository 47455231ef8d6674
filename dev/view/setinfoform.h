#ifndef SETINFOFORM_H
#define SETINFOFORM_H

// The control page: two groups of commands, each posted only after the operator confirmed it.
// May touch: the prompt dialog and the event codes; reads no snapshot and shows no result.

#include <devview/devview_export.h>

#include <QMap>
#include <QString>
#include <QVariant>
#include <QWidget>

class Ui_SetInfoForm;

/// The control page: battery tests above, shutdown, standby and restart below, each group with an
/// "OK" button that asks with a MsgBox before anything is posted.
///
/// It shows no result: a host says beside the view what a command came to. ChildForm enables it
/// from operator level 1 up and passes its signal on. Style sheets find its headings as
/// `#DevBigTitle` and its buttons as `#btnWhite`.
/// \image html control.png "The control page"
class DEVVIEW_EXPORT SetInfoForm : public QWidget
{
    Q_OBJECT

public:
    /// The first choice of each group is checked; standby is set to 60 minutes.
    explicit SetInfoForm(QWidget* parent = nullptr);
    ~SetInfoForm() override;

    /// The device that the commands are for, their "name"; empty until set.
    void setCurrentName(QString name);
    void InitSettingFormInfo(); ///< called when the page becomes current; has nothing to refresh
    void RefreshSettingInfo();  ///< has nothing to refresh
    /// Posts one command at once, **without asking**.
    /// \param controlId a CorvelEvent, passed on unchecked
    /// \param controlValue its parameter as text, passed on unchecked
    void control(int controlId, QString controlValue);

signals:
    /// The operator confirmed a command. First the CorvelEvent, then a map of exactly "name"
    /// (device, text), "controlId" (the code again, `int`) and "controlValue" (text: "12" for
    /// shutdown, minutes for standby: up to eight digits or empty, "1" for restart, else empty).
    void postDEvent(int, QMap<QString, QVariant>);

private slots:
    void on_DevTest_OK_clicked();
    void on_Offset_OK_clicked();

protected:
    Ui_SetInfoForm* ui;  ///< the form; owned
    QString currentName; ///< what setCurrentName() was given
};

#endif // SETINFOFORM_H

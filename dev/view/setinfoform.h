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

class DEVVIEW_EXPORT SetInfoForm : public QWidget
{
    Q_OBJECT

public:
    explicit SetInfoForm(QWidget* parent = nullptr);
    ~SetInfoForm() override;

    // The device that the commands are for; empty until set.
    void setCurrentName(QString name);
    // Called when the page becomes current. The page has nothing to refresh.
    void InitSettingFormInfo();
    void RefreshSettingInfo();
    // Posts one command at once, without asking. controlId: a CorvelEvent; controlValue: its
    // parameter as text, passed on unchecked.
    void control(int controlId, QString controlValue);

signals:
    // The operator confirmed a command: "name" (device, text), "controlId" (the code again, int)
    // and "controlValue" (text: "12" for shutdown, minutes for standby, "1" for restart, else
    // empty).
    void postDEvent(int, QMap<QString, QVariant>);

private slots:
    void on_DevTest_OK_clicked();
    void on_Offset_OK_clicked();

protected:
    Ui_SetInfoForm* ui;
    QString currentName;
};

#endif // SETINFOFORM_H

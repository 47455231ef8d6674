#ifndef SETINFOFORM_H
#define SETINFOFORM_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT SetInfoForm : public QWidget
{
    Q_OBJECT

public:
    explicit SetInfoForm(QWidget* parent = nullptr);
    void InitSettingFormInfo() {}
    void setCurrentName(QString) {}

signals:
    void postDEvent(int, QMap<QString, QVariant>);
};

#endif // SETINFOFORM_H

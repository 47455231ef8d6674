#ifndef RTEVENTFORM_H
#define RTEVENTFORM_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT RTEventForm : public QWidget
{
    Q_OBJECT

public:
    explicit RTEventForm(QWidget* parent = nullptr);
    void RefreshRTEventInfo(QMap<int, QVariant>) {}
    void InitRTEventFormInfo() {}
    void setCurrentName(QString) {}
};

#endif // RTEVENTFORM_H

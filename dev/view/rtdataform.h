#ifndef RTDATAFORM_H
#define RTDATAFORM_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT RTDataForm : public QWidget
{
    Q_OBJECT

public:
    explicit RTDataForm(QWidget* parent = nullptr);
    void InitRTData() {}
    void InitRTDataFormInfo() {}
    void RefreshRTDataInfo(QMap<int, QVariant>) {}
    void setCurrentName(QString) {}
};

#endif // RTDATAFORM_H

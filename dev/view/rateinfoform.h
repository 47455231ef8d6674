#ifndef RATEINFOFORM_H
#define RATEINFOFORM_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT RateInfoForm : public QWidget
{
    Q_OBJECT

public:
    explicit RateInfoForm(QWidget* parent = nullptr);
    void RefreshRateInfo(QMap<int, QVariant>) {}
    void setCurrentName(QString) {}
};

#endif // RATEINFOFORM_H

#ifndef CHARTFORM_H
#define CHARTFORM_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT ChartForm : public QWidget
{
    Q_OBJECT

public:
    explicit ChartForm(QWidget* parent = nullptr);
    int getCurrentIndex() { return 1; }
    void setCurrentIndex(int) {}
    void initFormInfo(bool) {}
    void refreshFormInfo(QMap<int, QVariant>) {}
    void setCurrentName(QString) {}
};

#endif // CHARTFORM_H

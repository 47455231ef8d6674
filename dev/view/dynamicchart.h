#ifndef DYNAMICCHART_H
#define DYNAMICCHART_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT DynamicChart : public QWidget
{
    Q_OBJECT

public:
    explicit DynamicChart(QWidget* parent = nullptr);

};

#endif // DYNAMICCHART_H

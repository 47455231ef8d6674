#ifndef THREEDYNAMICCHART_H
#define THREEDYNAMICCHART_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT ThreeDynamicChart : public QWidget
{
    Q_OBJECT

public:
    explicit ThreeDynamicChart(QWidget* parent = nullptr);

};

#endif // THREEDYNAMICCHART_H

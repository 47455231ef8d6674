#ifndef TRENDCHART_H
#define TRENDCHART_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT TrendChart : public QWidget
{
    Q_OBJECT

public:
    explicit TrendChart(QWidget* parent = nullptr);

};

#endif // TRENDCHART_H

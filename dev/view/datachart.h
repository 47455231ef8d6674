#ifndef DATACHART_H
#define DATACHART_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT DataChart : public QWidget
{
    Q_OBJECT

public:
    explicit DataChart(QWidget* parent = nullptr);

};

#endif // DATACHART_H

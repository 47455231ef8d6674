#ifndef ENERGYLINE_H
#define ENERGYLINE_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT Energyline : public QWidget
{
    Q_OBJECT

public:
    explicit Energyline(QWidget* parent = nullptr);
    void flushData(QMap<int, QVariant>) {}
};

#endif // ENERGYLINE_H

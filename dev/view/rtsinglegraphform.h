#ifndef RTSINGLEGRAPHFORM_H
#define RTSINGLEGRAPHFORM_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT RTSingleGraphForm : public QWidget
{
    Q_OBJECT

public:
    explicit RTSingleGraphForm(QWidget* parent = nullptr);

};

#endif // RTSINGLEGRAPHFORM_H

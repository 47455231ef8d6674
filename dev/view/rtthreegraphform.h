#ifndef RTTHREEGRAPHFORM_H
#define RTTHREEGRAPHFORM_H

#include "devview_export.h"

#include <QMap>
#include <QVariant>
#include <QWidget>

class DEVVIEW_EXPORT RTThreeGraphForm : public QWidget
{
    Q_OBJECT

public:
    explicit RTThreeGraphForm(QWidget* parent = nullptr);

};

#endif // RTTHREEGRAPHFORM_H

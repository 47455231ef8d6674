#ifndef MSGBOX_H
#define MSGBOX_H

#include "devview_export.h"

#include <QDialog>

class DEVVIEW_EXPORT MsgBox : public QDialog
{
    Q_OBJECT

public:
    MsgBox(int style, QString text);
};

#endif // MSGBOX_H

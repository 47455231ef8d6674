#ifndef FORMAREA_H
#define FORMAREA_H

// The form of a dialog: it has all the room it asks for and scrolls on a small screen.
// May touch: Qt Widgets only.

#include <QScrollArea>

class QDialog;

class FormArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit FormArea(QWidget* form, QWidget* parent = nullptr);

    QSize sizeHint() const override { return widget()->sizeHint(); }
};

// As large as wanted, where the screen has the room.
void fitScreen(QDialog* dialog, const QSize& wanted);

#endif // FORMAREA_H

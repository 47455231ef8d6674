#ifndef MSGBOX_H
#define MSGBOX_H

// The small modal dialog that asks before a command goes out.
// May touch: Qt only.

#include <devview/devview_export.h>

#include <QDialog>
#include <QPoint>

class QLabel;
class QPushButton;

enum {
    MSGBOX_STYLE_PROMPT = 0, // "Ok" alone
    MSGBOX_STYLE_CHOISE = 1, // "Ok" and "Cancel"
};

// Run it with exec(): QDialog::Accepted after "Ok", QDialog::Rejected after "Cancel" or Escape.
// It has no title bar; the left mouse button drags it by its body.
class DEVVIEW_EXPORT MsgBox : public QDialog
{
    Q_OBJECT

public:
    // style: any value but MSGBOX_STYLE_CHOISE is a prompt. text: shown as plain text; the dialog
    // widens with it, wraps what is wider than the screen allows and cuts what no screen can show.
    MsgBox(int style, QString text);

public slots:
    void okBtn_press();
    void cancleBtn_press();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

    QLabel* label_body_tit;
    QPushButton* okbtn;
    QPushButton* cancelbtn;
    QPoint move_point;        // where in the dialog the drag began
    bool mouse_press = false; // a left-button drag is under way
};

#endif // MSGBOX_H

#ifndef MSGBOX_H
#define MSGBOX_H

// The small modal dialog that asks before a command goes out.
// May touch: Qt only.

#include <devview/devview_export.h>

#include <QDialog>
#include <QPoint>

class QLabel;
class QPushButton;

/// \file
/// The prompt dialog and its styles.

/// The buttons of a MsgBox; any other number is a prompt.
enum {
    MSGBOX_STYLE_PROMPT = 0, ///< "Ok" alone
    MSGBOX_STYLE_CHOISE = 1, ///< "Ok" and "Cancel"
};

/// A question or a message before anything is done: the control page asks with it before it posts a
/// command, and a host may use it for its own.
///
/// Run it with `exec()`: `QDialog::Accepted` after "Ok", `QDialog::Rejected` after "Cancel", Escape
/// or a close. It has no title bar; the left mouse button drags it by its body. Style sheets find
/// it as `#WhiteDialog`, its buttons as `#btnBlue` ("Ok") and `#btnWhite` ("Cancel").
/// \image html prompt.png "What the control page asks"
class DEVVIEW_EXPORT MsgBox : public QDialog
{
    Q_OBJECT

public:
    /// \param style MSGBOX_STYLE_CHOISE or MSGBOX_STYLE_PROMPT.
    /// \param text shown as plain text, whatever is in it. The dialog is at least 300 by 150 px and
    /// widens with the text, wraps what is wider than the screen allows and cuts what no screen can
    /// show.
    MsgBox(int style, QString text);

public slots:
    void okBtn_press();     ///< Accepts, as the "Ok" button does.
    void cancleBtn_press(); ///< Rejects, as the "Cancel" button does.

protected:
    void mousePressEvent(QMouseEvent* event) override;   ///< the left button begins a drag
    void mouseReleaseEvent(QMouseEvent* event) override; ///< any button ends it
    void mouseMoveEvent(QMouseEvent* event) override;    ///< moves the dialog during a drag

    QLabel* label_body_tit;   ///< the text
    QPushButton* okbtn;       ///< "Ok"
    QPushButton* cancelbtn;   ///< "Cancel"; hidden in a prompt
    QPoint move_point;        ///< where in the dialog the drag began, px
    bool mouse_press = false; ///< a left-button drag is under way
};

#endif // MSGBOX_H

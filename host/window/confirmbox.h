#ifndef CONFIRMBOX_H
#define CONFIRMBOX_H

// A question before something that cannot be taken back: Cancel is the default and the way out.
// May touch: Qt Widgets.

#include <QMessageBox>

#include <functional>

class ConfirmBox : public QMessageBox
{
    Q_OBJECT

public:
    struct Words {
        QString title;
        QString question; // plain text, like all of them
        QString details;
        QString yes; // what the button does, "Shut down"
    };

    // Shows itself over `window` and waits for nobody: calls back once, with no where it is closed
    // or its window goes, and deletes itself.
    static ConfirmBox* ask(const Words& words, QWidget* window,
                           const std::function<void(bool yes)>& answer);

private:
    explicit ConfirmBox(const Words& words, QWidget* window);
};

#endif // CONFIRMBOX_H

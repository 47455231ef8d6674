#include "window/confirmbox.h"

#include <QPushButton>

ConfirmBox::ConfirmBox(const Words& words, QWidget* window)
    : QMessageBox(window)
{
    setObjectName(QStringLiteral("ConfirmBox"));
    setAttribute(Qt::WA_DeleteOnClose);
    setIcon(QMessageBox::Warning);
    setWindowTitle(words.title);
    setTextFormat(Qt::PlainText);
    setText(words.question);
    setInformativeText(words.details);
    QPushButton* yes = addButton(words.yes, QMessageBox::DestructiveRole);
    yes->setObjectName(QStringLiteral("ConfirmYes"));
    QPushButton* cancel = addButton(QMessageBox::Cancel);
    setDefaultButton(cancel);
    setEscapeButton(cancel);
}

ConfirmBox* ConfirmBox::ask(const Words& words, QWidget* window,
                            const std::function<void(bool yes)>& answer)
{
    auto* box = new ConfirmBox(words, window);
    connect(box, &QDialog::finished, box, [box, answer] {
        const QAbstractButton* pressed = box->clickedButton();
        answer(pressed && pressed->objectName() == QLatin1String("ConfirmYes"));
    });
    box->open();
    return box;
}

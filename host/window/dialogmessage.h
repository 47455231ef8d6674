#ifndef DIALOGMESSAGE_H
#define DIALOGMESSAGE_H

// What a dialog has to say: a hint, what is wrong, or how a test ended. Plain text.
// May touch: Qt Widgets.

#include "window/plainlabel.h"

class DialogMessage : public PlainLabel
{
    Q_OBJECT

public:
    enum class Tone { Hint, Good, Bad };

    explicit DialogMessage(QWidget* parent = nullptr);

    // Makes the window higher where the text needs it.
    void say(const QString& text, Tone tone);
};

#endif // DIALOGMESSAGE_H

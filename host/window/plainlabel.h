#ifndef PLAINLABEL_H
#define PLAINLABEL_H

// A label that shows its text as it stands, markup included, in as many lines as it takes.
// May touch: Qt Widgets only.

#include <QLabel>

class PlainLabel : public QLabel
{
    Q_OBJECT

public:
    explicit PlainLabel(const QString& text = {}, QWidget* parent = nullptr)
        : QLabel(text, parent)
    {
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
    }
};

#endif // PLAINLABEL_H

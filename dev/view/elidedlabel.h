#ifndef ELIDEDLABEL_H
#define ELIDEDLABEL_H

// A label for text from a device: one line of plain text, cut with "..." where it does not fit, the
// rest in the tool tip. Whatever the text, the layout around it keeps its shape; text() stays the
// full text.
// May touch: Qt Widgets only.

#include <devview/devview_export.h>

#include <QLabel>

class DEVVIEW_EXPORT ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    // minimumCharacters: a text of up to about this length is never cut.
    ElidedLabel(const QString& text, int minimumCharacters, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText() const;
    QSize sizeFor(int maxCharacters) const;

    int m_minimumCharacters;
};

#endif // ELIDEDLABEL_H

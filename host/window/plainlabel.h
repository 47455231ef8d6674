#ifndef PLAINLABEL_H
#define PLAINLABEL_H

// A label that shows any text as it stands, and shortens it where there is no room.
// May touch: Qt Widgets.

#include <QLabel>

class PlainLabel : public QLabel
{
    Q_OBJECT

public:
    explicit PlainLabel(QWidget* parent = nullptr);

    void setFullText(const QString& text);
    QString fullText() const { return m_fullText; }

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();

    QString m_fullText;
};

#endif // PLAINLABEL_H

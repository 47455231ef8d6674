#ifndef LINKCOVER_H
#define LINKCOVER_H

// Lies over a view whose data is not live: a veil that keeps the values readable, and a band that
// says why. Lets the mouse through, so that the view's tabs still turn.
// May touch: Qt Widgets.

#include <QString>
#include <QWidget>

class LinkCover : public QWidget
{
    Q_OBJECT

public:
    // Covers `parent` whole and follows its size. Starts hidden.
    explicit LinkCover(QWidget* parent);

    // title: the state in two words; text: cause and age. An empty title takes the cover away.
    void say(const QString& title, const QString& text);
    // Nothing beneath is worth reading (no reading yet): an opaque cover.
    void setOpaque(bool opaque);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString m_title;
    QString m_text;
    bool m_opaque = false;
};

#endif // LINKCOVER_H

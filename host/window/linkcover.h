#ifndef LINKCOVER_H
#define LINKCOVER_H

// A veil over a view whose data is not live: the values stay readable, and nothing passes for live.
// Lets the mouse through, so that the view's tabs still turn.
// May touch: Qt Widgets.

#include <QWidget>

class LinkCover : public QWidget
{
    Q_OBJECT

public:
    // Covers `parent` whole and follows its size. Starts hidden.
    explicit LinkCover(QWidget* parent);

    // Opaque when nothing beneath is worth reading (no reading yet).
    void setOpaque(bool opaque);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_opaque = false;
};

#endif // LINKCOVER_H

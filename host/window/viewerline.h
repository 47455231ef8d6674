#ifndef VIEWERLINE_H
#define VIEWERLINE_H

// How old the collectors' word is, on a desk that polls nothing; which of them are silent.
// May touch: the viewer.

#include <QFrame>

class QLabel;
class Viewer;

class ViewerLine : public QFrame
{
    Q_OBJECT

public:
    explicit ViewerLine(QWidget* parent = nullptr); // hidden

    // Shows itself. The viewer must be there as long as the line is.
    void follow(const Viewer& viewer);

private:
    void show(const QString& text, bool isBad);

    QLabel* m_text;
};

#endif // VIEWERLINE_H

#ifndef RESULTBANNER_H
#define RESULTBANNER_H

// How the last command ended, until somebody closes it or the next one ends: no box in the way.
// May touch: Qt Widgets.

#include <QFrame>

class QLabel;

class ResultBanner : public QFrame
{
    Q_OBJECT

public:
    explicit ResultBanner(QWidget* parent = nullptr);

    void say(const QString& text, bool isBad);

private:
    QLabel* m_text;
};

#endif // RESULTBANNER_H

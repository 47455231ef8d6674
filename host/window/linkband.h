#ifndef LINKBAND_H
#define LINKBAND_H

// Says above a view why its data is not live, and how old it is.
// May touch: Qt Widgets, the colours of urgency.

#include <QFrame>

class QLabel;

class LinkBand : public QFrame
{
    Q_OBJECT

public:
    explicit LinkBand(QWidget* parent = nullptr);

    // title: the state in two words; text: cause and age. isWaiting: nothing is wrong yet.
    void say(const QString& title, const QString& text, bool isWaiting);

private:
    QLabel* m_title;
    QLabel* m_text;
    QString m_color; // of the ground, as last set
};

#endif // LINKBAND_H

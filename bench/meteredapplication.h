#ifndef METEREDAPPLICATION_H
#define METEREDAPPLICATION_H

// An application that measures for how long its GUI thread is busy at a stretch: from the first
// event after a pause to the next moment in which it has nothing to do.
// May touch: Qt Widgets and the clocks of the thread.

#include <QApplication>
#include <QElapsedTimer>
#include <QVector>

class MeteredApplication : public QApplication
{
    Q_OBJECT

public:
    struct Stretch {
        double wall = 0; // ms, with what other processes took from us
        double cpu = 0;  // ms, what the thread worked
        QString work;    // the events that took longest
    };

    MeteredApplication(int& argc, char** argv);

    // Forgets what has been measured so far.
    void restart();
    // The longest by the thread's own work, and the longest by the clock on the wall.
    const Stretch& busiest() const { return m_busiest; }
    const Stretch& longest() const { return m_longest; }
    int count() const { return m_count; }
    // Number of stretches whose work took longer than this.
    int countAbove(double ms) const;

    bool notify(QObject* receiver, QEvent* event) override;

private:
    struct Event {
        const char* receiver;
        int type;
        qint64 ns;
    };

    void endStretch();
    QString describeWork() const;

    QElapsedTimer m_clock;
    bool m_busy = false;
    int m_depth = 0;
    qint64 m_wallStart = 0; // ns
    qint64 m_cpuStart = 0;  // ns
    QVector<Event> m_events;
    QVector<float> m_works; // ms
    Stretch m_busiest;
    Stretch m_longest;
    int m_count = 0;
};

#endif // METEREDAPPLICATION_H

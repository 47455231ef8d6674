#ifndef HISTORYREADER_H
#define HISTORYREADER_H

// Asks the store for the window, in a thread of its own: nobody waits.
// May touch: the store, the boot clock.
//
//     reader.ask<HistorySeries>(
//         this, [=](HistoryQueries& store) { return store.series(id, range, 1000, wanted); },
//         [this](const HistorySeries& series, const QString& error) { show(series, error); });

#include "history/historyqueries.h"

#include <QObject>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <functional>

class HistoryReader : public QObject
{
    Q_OBJECT

public:
    explicit HistoryReader(const StoreAddress& address, QObject* parent = nullptr);
    ~HistoryReader() override;

    // Runs `question` in the reader's thread, one after the other, and calls `done` once in the
    // thread of this object, which is that of `context`; never where `context` is gone by then.
    // error: empty, or in plain words why there is no answer; the answer is an empty one then.
    template <typename Answer>
    void ask(QObject* context, std::function<Answer(HistoryQueries&)> question,
             std::function<void(const Answer&, const QString& error)> done)
    {
        QPointer<QObject> target(context);
        post([=](HistoryQueries* queries, const QString& fault) {
            const Answer answer = queries ? question(*queries) : Answer();
            const QString error = queries ? queries->errorText() : fault;
            QMetaObject::invokeMethod(
                this,
                [=] {
                    if (target)
                        done(answer, error);
                },
                Qt::QueuedConnection);
        });
    }

private:
    using Job = std::function<void(HistoryQueries*, const QString& fault)>;

    void post(const Job& job);
    void run(const Job& job);
    void watchStore();

    QThread m_thread;
    QObject* m_worker; // lives in the thread
    std::unique_ptr<HistoryStore> m_store;
    std::atomic<bool> m_isEnding{false};
    std::atomic<qint64> m_busySinceMs{0}; // boot clock; 0: no question is under way
    QTimer m_watch;
};

#endif // HISTORYREADER_H

#ifndef HISTORYPAGE_H
#define HISTORYPAGE_H

// What the store knows of one device: charts over true time, what happened meanwhile, outages.
// May touch: the history's reader, devices.

#include "history/devicehistory.h"
#include "history/historyreader.h"
#include "window/timewindow.h"

#include <QElapsedTimer>
#include <QMap>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>

class Device;
class HistoryPlot;
class OutageTable;
class QAction;
class QButtonGroup;
class QHBoxLayout;
class QVBoxLayout;
class QLabel;
class QSplitter;
class QStackedWidget;
class QToolButton;

// Never waits for the store: while an answer is under way the last one stays on show. One question
// is under way at a time; the operator's further wishes become one more, for the last of them.
class HistoryPage : public QWidget
{
    Q_OBJECT

public:
    struct Span {
        const char* title;
        qint64 lengthMs;
    };
    static const QVector<Span>& spans();

    // The device must outlive the page.
    explicit HistoryPage(const Device& device, QWidget* parent = nullptr);

    // Null: there is none. The reader may go at any time.
    void setReader(HistoryReader* reader);
    // Time has passed, or the device was polled: what follows the present is asked for again.
    void refresh();

    void showSpan(qint64 lengthMs);
    void showRange(TimeRange range);
    TimeRange range() const { return m_window.range(); }
    bool isLoading() const { return m_isAsking; }
    QString message() const; // what stands in place of the charts; empty: the charts

    // What is shown, as stored or as a picture; the outcome is told below the buttons.
    void saveCsv(const QString& path);
    void savePicture(const QString& path);

signals:
    void shown(); // an answer has reached the charts

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeButtons();
    void addSpanButtons(QHBoxLayout* row);
    void addMoveButtons(QHBoxLayout* row);
    void addMenus(QHBoxLayout* row);
    QWidget* makeInfo();
    QWidget* makeCharts();
    void addPlot(int chart);
    void followPlot(HistoryPlot* plot);
    QString fileName(const QString& suffix) const;
    void askForPath(const QString& suffix, void (HistoryPage::*save)(const QString&));

    void reload();
    void take(const DeviceHistory& history, const QString& error);
    DeviceHistory::Wish wish() const;
    void windowChanged();
    void zoom(double factor);
    void readAt(std::optional<qint64> timeMs);
    void stepRows(int rows);
    void showCharts();
    void showInfo();
    QString remark() const;
    void showLegend();
    QString entriesAt(qint64 timeMs) const;
    void say(const QString& message);
    static qint64 nowMs();

    const Device& m_device;
    QPointer<HistoryReader> m_reader;
    TimeWindow m_window;
    std::shared_ptr<const DeviceHistory> m_history;
    qint64 m_longestStepMs = 0;
    std::optional<qint64> m_readMs;
    QString m_error;   // of the last question
    QString m_outcome; // of the last file
    bool m_isAsking = false;
    bool m_askAgain = false;
    quint64 m_asked = 0; // number of the last question: answers to others are late
    QElapsedTimer m_answered;
    QTimer m_patience; // before "Loading" is said

    QButtonGroup* m_spanButtons;
    QToolButton* m_now = nullptr;
    QStackedWidget* m_stack;
    QLabel* m_message;
    QLabel* m_info;
    QLabel* m_legend;
    QVBoxLayout* m_column = nullptr;
    QMap<int, HistoryPlot*> m_plots; // by index in historyCharts()
    QVector<QAction*> m_chartChoices;
    QSplitter* m_splitter;
    OutageTable* m_outages;
};

#endif // HISTORYPAGE_H

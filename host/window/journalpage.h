#ifndef JOURNALPAGE_H
#define JOURNALPAGE_H

// What happened, from the store: filters above, entries below; acknowledging, and a CSV file.
// May touch: the history's reader and writer, the operator session.

#include "history/historywriter.h"
#include "operators/operatorsession.h"
#include "window/journalmodel.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class OperatorGate;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

class JournalPage : public QWidget
{
    Q_OBJECT

public:
    explicit JournalPage(OperatorSession& session, QWidget* parent = nullptr);

    // Both may go before the page does.
    void setStore(HistoryReader* reader, HistoryWriter* writer);
    // The selected entries that nobody has acknowledged yet, in the name of who is logged in.
    void acknowledge(const QString& note);
    // Writes all entries that the filters let through; answers with told().
    void exportTo(const QString& path);

signals:
    void told(const QString& text, bool isBad);
    // The device of an entry, as it was then.
    void replayWanted(const QString& device, qint64 timeMs);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QHBoxLayout* makeFilters();
    QHBoxLayout* makeSearch();
    QHBoxLayout* makeButtons();
    void makeView();
    void applyFilter();
    void readDevices();
    void refresh();
    void showState(const QString& error);
    void showChoice();
    void askForNote();
    void askForPath();
    void replayFrom(const QModelIndex& index);

    OperatorSession& m_session;
    OperatorGate* m_gate;
    QPointer<HistoryReader> m_reader;
    QPointer<HistoryWriter> m_writer;
    JournalModel* m_model;
    QTreeView* m_view;
    QComboBox* m_device;
    QComboBox* m_kind;
    QComboBox* m_period;
    QComboBox* m_severity;
    QLineEdit* m_text;
    QCheckBox* m_onlyOpen;
    QCheckBox* m_onlyNew;
    QPushButton* m_acknowledge;
    QPushButton* m_export;
    QPushButton* m_replay;
    QLabel* m_state;
    QTimer m_typing;
    QTimer m_refresh;
};

#endif // JOURNALPAGE_H

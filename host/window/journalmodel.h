#ifndef JOURNALMODEL_H
#define JOURNALMODEL_H

// The journal as a table, in the order of its onsets. Rows come from the store in pages while the
// view scrolls, so that the window never waits.
// May touch: the history's reader, colours of urgency.

#include "history/historyreader.h"

#include <QAbstractTableModel>

class JournalModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Onset, Duration, DeviceName, Kind, Severity, Text, Message, Who, Acknowledged };
    static constexpr int kPageRows = 500;
    static constexpr int kMostRows = 20000; // narrower filters show what is older

    explicit JournalModel(QObject* parent = nullptr);

    // Null: there is none (any more).
    void setReader(HistoryReader* reader);
    // Shows other entries; offset and limit are the model's own.
    void setFilter(const JournalFilter& filter);
    const JournalFilter& filter() const { return m_filter; }
    // Something was stored: reads again what is on show, and leaves selected what was.
    void refresh();
    JournalEntry entry(int row) const { return m_entries.value(row); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    // By the onset; the other columns have no order.
    void sort(int column, Qt::SortOrder order) override;

    static QString kindText(JournalKind kind);
    static QString severityText(Urgency severity);

signals:
    // An answer came; error is empty or says why there is none.
    void answered(const QString& error);

private:
    using Entries = QVector<JournalEntry>;

    void ask(int offset, int limit, void (JournalModel::*take)(const Entries& entries));
    void append(const Entries& entries);
    void merge(const Entries& entries);
    void addAround(const Entries& now, int front);
    QString cellText(const JournalEntry& entry, int column) const;

    QPointer<HistoryReader> m_reader;
    JournalFilter m_filter;
    Entries m_entries;
    int m_question = 0; // number of the filter that the entries are for
    bool m_isAsking = false;
    bool m_hasAll = true;
};

#endif // JOURNALMODEL_H

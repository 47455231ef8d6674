#ifndef HISTORYSPOOL_H
#define HISTORYSPOOL_H

// Batches on disk while the store cannot take them: append-only, each synced before it counts.
// May touch: files in its folder.

#include "history/historyrecord.h"

#include <QFile>

#include <memory>

class QLockFile;

class HistorySpool
{
public:
    static constexpr qint64 kMostBytes = 256 * 1024 * 1024;

    // The folder is made when it is needed. Of several desks of one user each gets a file of its
    // own, and takes over what desks that are gone have left.
    explicit HistorySpool(const QString& folder, qint64 mostBytes = kMostBytes);
    ~HistorySpool();

    // False: nothing was added, see errorText().
    bool append(const HistoryBatch& batch);
    QString errorText() const { return m_error; }

    bool isEmpty() const { return m_position >= m_size; }
    // The oldest batch; none when empty. A part that a crash left unfinished, or that is damaged,
    // ends the file.
    std::optional<HistoryBatch> first();
    void dropFirst();

    // upsdesk/spool in the user's data folder.
    static QString defaultFolder();

private:
    bool claimFile();
    void takeOver(const QString& path);
    bool appendBytes(const QByteArray& bytes);
    void clear();
    QByteArray frameAt(QFile& file, qint64 position) const; // with its head; empty: none
    qint64 soundSize(QFile& file) const;

    QString m_folder;
    qint64 m_mostBytes;
    std::unique_ptr<QLockFile> m_lock;
    QFile m_file;
    qint64 m_size = 0;
    qint64 m_position = 0; // of the oldest batch
    QString m_error;
};

#endif // HISTORYSPOOL_H

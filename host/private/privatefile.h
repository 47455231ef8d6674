#ifndef PRIVATEFILE_H
#define PRIVATEFILE_H

// Files that only their owner may read.
// May touch: Qt Core, the file system.

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

struct FileContent {
    std::optional<QByteArray> bytes; // empty: there is no file, or it cannot be used
    QString error;                   // of one that cannot be used
};

// Tells whether a file has been written or replaced since.
struct FileStamp {
    qint64 modified = 0; // ns
    qint64 size = -1;
    quint64 inode = 0;

    static FileStamp of(const QString& path);
    bool operator==(const FileStamp& other) const
    {
        return modified == other.modified && size == other.size && inode == other.inode;
    }
};

// At most maxBytes are read: a longer file is an error.
FileContent readBoundedFile(const QString& path, qint64 maxBytes);

// Runs `change` while no other upsdesk writes the file; makes its folder first. Waits half a second
// for the other one. Returns what `change` returns, or why it was not run.
QString withFileLock(const QString& path, const std::function<QString()>& change);

// Replaces the file in one step or not at all, mode 0600, with its folder where there is none
// (0700). A symbolic link stays one: its target is replaced. Returns what went wrong, empty when
// written.
QString writePrivateFile(const QString& path, const QByteArray& bytes);

// The folder and what leads to it; one that is made is mode 0700, one that exists is left alone.
bool makePrivateFolder(const QString& folder);

// The file belongs to this user and nobody else may read or write it; also true where it is
// missing.
bool isPrivateFile(const QString& path);

#endif // PRIVATEFILE_H

#include "history/historyspool.h"

#include "private/privatefile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QLockFile>
#include <QStandardPaths>
#include <QtEndian>

#include <fcntl.h>
#include <unistd.h>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(HistorySpool)
};

constexpr int kMostFiles = 16;
// A frame: size of the body, a digest of it, the body.
constexpr int kSizeBytes = 4;
constexpr int kDigestBytes = 20;
constexpr int kHeadBytes = kSizeBytes + kDigestBytes;
// Taken from the disk beforehand, so that events still find room when the disk is full.
constexpr qint64 kReserveBytes = 4 * 1024 * 1024;

QByteArray digest(const QByteArray& body)
{
    return QCryptographicHash::hash(body, QCryptographicHash::Sha1);
}

void reserve(const QFile& file)
{
    // A file system that cannot is no reason to go without a spool.
    (void)fallocate(file.handle(), FALLOC_FL_KEEP_SIZE, 0, kReserveBytes);
}

} // namespace

HistorySpool::HistorySpool(const QString& folder, qint64 mostBytes)
    : m_folder(folder)
    , m_mostBytes(mostBytes)
{
    claimFile();
}

HistorySpool::~HistorySpool()
{
    if (m_file.isOpen() && isEmpty())
        m_file.remove();
}

QString HistorySpool::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/upsdesk/spool");
}

bool HistorySpool::claimFile()
{
    if (m_file.isOpen())
        return true;
    if (!makePrivateFolder(m_folder)) {
        m_error = Tr::tr("cannot make the folder %1").arg(m_folder);
        return false;
    }
    for (int i = 1; i <= kMostFiles; ++i) {
        const QString path = QStringLiteral("%1/%2.spool").arg(m_folder).arg(i);
        auto lock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
        lock->setStaleLockTime(0);
        if (!lock->tryLock())
            continue;
        if (m_file.isOpen()) {
            takeOver(path);
            continue;
        }
        m_file.setFileName(path);
        if (!m_file.open(QIODevice::ReadWrite))
            continue;
        m_lock = std::move(lock);
        m_size = soundSize(m_file);
        m_file.resize(m_size);
        reserve(m_file);
    }
    if (!m_file.isOpen())
        m_error = Tr::tr("cannot write in the folder %1").arg(m_folder);
    return m_file.isOpen();
}

void HistorySpool::takeOver(const QString& path)
{
    QFile left(path);
    if (!left.exists() || !left.open(QIODevice::ReadWrite))
        return;
    bool done = true;
    for (qint64 at = 0; done;) {
        const QByteArray frame = frameAt(left, at);
        if (frame.isEmpty())
            break;
        done = appendBytes(frame);
        at += frame.size();
    }
    if (done)
        left.remove();
}

QByteArray HistorySpool::frameAt(QFile& file, qint64 position) const
{
    if (!file.seek(position))
        return {};
    const QByteArray head = file.read(kHeadBytes);
    if (head.size() < kHeadBytes)
        return {};
    const auto size = qFromBigEndian<quint32>(head.constData());
    if (size > file.size() - position - kHeadBytes)
        return {};
    const QByteArray body = file.read(size);
    return digest(body) == head.mid(kSizeBytes) ? head + body : QByteArray();
}

qint64 HistorySpool::soundSize(QFile& file) const
{
    qint64 size = 0;
    for (QByteArray frame = frameAt(file, 0); !frame.isEmpty(); frame = frameAt(file, size))
        size += frame.size();
    return size;
}

bool HistorySpool::append(const HistoryBatch& batch)
{
    const QByteArray body = encodeBatch(batch);
    QByteArray head(kSizeBytes, '\0');
    qToBigEndian(static_cast<quint32>(body.size()), head.data());
    return appendBytes(head + digest(body) + body);
}

bool HistorySpool::appendBytes(const QByteArray& bytes)
{
    if (!claimFile())
        return false;
    if (m_size + bytes.size() > m_mostBytes) {
        m_error = Tr::tr("the spool in %1 is full").arg(m_folder);
        return false;
    }
    if (m_file.seek(m_size) && m_file.write(bytes) == bytes.size() && m_file.flush() &&
        fdatasync(m_file.handle()) == 0) {
        m_size += bytes.size();
        return true;
    }
    m_error = Tr::tr("cannot write the spool in %1: %2").arg(m_folder, m_file.errorString());
    m_file.resize(m_size);
    return false;
}

std::optional<HistoryBatch> HistorySpool::first()
{
    while (!isEmpty()) {
        const QByteArray frame = frameAt(m_file, m_position);
        HistoryBatch batch;
        if (!frame.isEmpty() && decodeBatch(frame.mid(kHeadBytes), batch))
            return batch;
        if (frame.isEmpty())
            clear();
        else
            m_position += frame.size();
    }
    return {};
}

void HistorySpool::dropFirst()
{
    m_position += frameAt(m_file, m_position).size();
    if (isEmpty())
        clear();
}

void HistorySpool::clear()
{
    m_file.resize(0);
    reserve(m_file);
    m_size = 0;
    m_position = 0;
}

#include "window/journalmodel.h"

#include "connectors/devicesettings.h"
#include "reading/sanitize.h"
#include "window/urgencycolors.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

// By the numbers of the enumerations.
constexpr const char* kTitles[] = {
    QT_TRANSLATE_NOOP("JournalModel", "Onset"),       QT_TRANSLATE_NOOP("JournalModel", "Duration"),
    QT_TRANSLATE_NOOP("JournalModel", "Device"),      QT_TRANSLATE_NOOP("JournalModel", "Kind"),
    QT_TRANSLATE_NOOP("JournalModel", "Severity"),    QT_TRANSLATE_NOOP("JournalModel", "Entry"),
    QT_TRANSLATE_NOOP("JournalModel", "Message"),     QT_TRANSLATE_NOOP("JournalModel", "Operator"),
    QT_TRANSLATE_NOOP("JournalModel", "Acknowledged")};
constexpr const char* kKinds[] = {QT_TRANSLATE_NOOP("JournalModel", "Condition"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Alarm"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Outage"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Bypass"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Battery"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Link"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Command"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Operator"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Configuration"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Store"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Clock"),
                                  QT_TRANSLATE_NOOP("JournalModel", "Desk")};
constexpr const char* kSeverities[] = {
    QT_TRANSLATE_NOOP("JournalModel", "Normal"), QT_TRANSLATE_NOOP("JournalModel", "Notice"),
    QT_TRANSLATE_NOOP("JournalModel", "Warning"), QT_TRANSLATE_NOOP("JournalModel", "Alarm"),
    QT_TRANSLATE_NOOP("JournalModel", "Critical")};

QString timeText(qint64 timeMs)
{
    return QDateTime::fromMSecsSinceEpoch(timeMs).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString durationText(qint64 ms)
{
    const qint64 seconds = std::max<qint64>(ms / 1000, 0);
    const qint64 days = seconds / 86400;
    const QString clock = QStringLiteral("%1:%2:%3")
                              .arg(seconds / 3600 % 24)
                              .arg(seconds / 60 % 60, 2, 10, QLatin1Char('0'))
                              .arg(seconds % 60, 2, 10, QLatin1Char('0'));
    return days > 0 ? JournalModel::tr("%1 d %2").arg(days).arg(clock) : clock;
}

QString lastingText(const JournalEntry& entry)
{
    if (entry.isMoment)
        return {};
    return entry.endMs ? durationText(*entry.endMs - entry.onsetMs) : JournalModel::tr("still so");
}

QString messageText(const JournalEntry& entry)
{
    QStringList parts;
    if (entry.lowestCharge)
        parts << JournalModel::tr("lowest charge %1 %").arg(*entry.lowestCharge, 0, 'f', 0);
    if (!entry.message.isEmpty())
        parts << entry.message;
    return parts.join(QStringLiteral("; "));
}

QString acknowledgedText(const JournalEntry& entry)
{
    if (!entry.acknowledgedMs)
        return {};
    QStringList parts{timeText(*entry.acknowledgedMs), entry.acknowledgedBy, entry.acknowledgeNote};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

bool isSameRows(const QVector<JournalEntry>& old, const QVector<JournalEntry>& now, int from)
{
    return now.size() - from >= old.size() &&
           std::equal(old.begin(), old.end(), now.begin() + from,
                      [](const JournalEntry& a, const JournalEntry& b) { return a.key == b.key; });
}

} // namespace

JournalModel::JournalModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void JournalModel::setReader(HistoryReader* reader)
{
    m_reader = reader;
    setFilter(m_filter);
}

void JournalModel::setFilter(const JournalFilter& filter)
{
    beginResetModel();
    m_filter = filter;
    m_entries.clear();
    m_hasAll = !m_reader;
    m_isAsking = false;
    ++m_question;
    endResetModel();
    fetchMore({});
}

void JournalModel::refresh()
{
    if (m_reader && !m_isAsking)
        ask(0, std::max<int>(m_entries.size(), kPageRows), &JournalModel::merge);
}

void JournalModel::ask(int offset, int limit, void (JournalModel::*take)(const Entries& entries))
{
    m_isAsking = true;
    JournalFilter filter = m_filter;
    filter.offset = offset;
    filter.limit = limit;
    m_reader->ask<Entries>(
        this, [filter](HistoryQueries& store) { return store.journal(filter); },
        [this, take, question = m_question](const Entries& entries, const QString& error) {
            if (question != m_question)
                return; // of an earlier filter
            m_isAsking = false;
            if (error.isEmpty())
                (this->*take)(entries);
            else
                m_hasAll = true; // until the next refresh
            emit answered(error);
        });
}

void JournalModel::append(const Entries& entries)
{
    m_hasAll = entries.size() < kPageRows;
    QSet<QString> known; // new entries have moved the pages on meanwhile
    for (const JournalEntry& entry : qAsConst(m_entries))
        known.insert(entry.key);
    Entries added;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(added),
                 [&known](const JournalEntry& entry) { return !known.contains(entry.key); });
    if (added.isEmpty())
        return;
    beginInsertRows({}, m_entries.size(), m_entries.size() + added.size() - 1);
    m_entries += added;
    endInsertRows();
}

void JournalModel::merge(const Entries& entries)
{
    const int limit = std::max<int>(m_entries.size(), kPageRows);
    Entries now = entries;
    int added = 0; // in front of those on show
    while (!m_entries.isEmpty() && added < now.size() && now.at(added).key != m_entries.at(0).key)
        ++added;
    // What new entries have pushed out of the answer is still there.
    const int tail = std::min<int>(added, m_entries.size());
    if (entries.size() == limit && added > 0 && added < now.size())
        now += m_entries.mid(m_entries.size() - tail);
    if (m_entries.isEmpty() || !isSameRows(m_entries, now, added)) {
        beginResetModel();
        m_entries = entries;
        endResetModel();
    } else {
        addAround(now, added);
        emit dataChanged(index(0, 0), index(m_entries.size() - 1, Acknowledged));
    }
    m_hasAll = entries.size() < limit;
}

// The rows on show are those of `now` from `front` on.
void JournalModel::addAround(const Entries& now, int front)
{
    const int known = front + m_entries.size();
    if (front > 0) {
        beginInsertRows({}, 0, front - 1);
        m_entries = now.mid(0, known);
        endInsertRows();
    }
    if (now.size() > known) {
        beginInsertRows({}, known, now.size() - 1);
        m_entries = now;
        endInsertRows();
    }
    m_entries = now;
}

int JournalModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

int JournalModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(std::size(kTitles));
}

bool JournalModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && m_reader && !m_hasAll && !m_isAsking &&
           m_entries.size() < kMostRows;
}

void JournalModel::fetchMore(const QModelIndex& parent)
{
    if (canFetchMore(parent))
        ask(m_entries.size(), kPageRows, &JournalModel::append);
}

void JournalModel::sort(int column, Qt::SortOrder order)
{
    const bool oldestFirst = order == Qt::AscendingOrder;
    if (column != Onset || oldestFirst == m_filter.oldestFirst)
        return;
    JournalFilter filter = m_filter;
    filter.oldestFirst = oldestFirst;
    setFilter(filter);
}

// The store is another's file by now: its texts are not trusted.
QString JournalModel::cellText(const JournalEntry& entry, int column) const
{
    switch (column) {
    case Onset:
        return timeText(entry.onsetMs);
    case Duration:
        return lastingText(entry);
    case DeviceName:
        return cleanDeviceText(entry.device.isEmpty() ? entry.site
                                                      : nameAtSite(entry.site, entry.device));
    case Kind:
        return kindText(entry.kind);
    case Severity:
        return severityText(entry.severity);
    case Text:
        return cleanDeviceText(entry.text);
    case Message:
        return cleanDeviceText(messageText(entry));
    case Who:
        return cleanDeviceText(entry.operatorName);
    default:
        return cleanDeviceText(acknowledgedText(entry));
    }
}

QVariant JournalModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return {};
    const JournalEntry& entry = m_entries.at(index.row());
    if (role == Qt::DisplayRole)
        return cellText(entry, index.column());
    if (role == Qt::ToolTipRole)
        return QStringLiteral("<qt>%1</qt>").arg(cellText(entry, index.column()).toHtmlEscaped());
    const bool isOpen = !entry.isMoment && !entry.endMs;
    const bool isMarked = index.column() == Severity || (isOpen && index.column() == Duration);
    if (role == Qt::ForegroundRole && isMarked)
        return urgencyTextColor(entry.severity, QGuiApplication::palette());
    return {};
}

QVariant JournalModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= columnCount())
        return {};
    return tr(kTitles[section]);
}

QString JournalModel::kindText(JournalKind kind)
{
    return tr(kKinds[static_cast<int>(kind)]);
}

QString JournalModel::severityText(Urgency severity)
{
    return tr(kSeverities[static_cast<int>(severity)]);
}

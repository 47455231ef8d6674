#include "window/devicelistmodel.h"

#include "window/devicesummary.h"
#include "window/urgencycolors.h"

#include <QToolTip>

namespace {

// Polls arrive by the hundred a second in a large fleet; the views learn of them in batches.
constexpr int kFlushMs = 200;

struct CountWord {
    Urgency urgency;
    const char* word;
};

constexpr CountWord kCountWords[] = {
    {Urgency::Critical, QT_TRANSLATE_NOOP("DeviceListModel", "%1 critical")},
    {Urgency::Alarm, QT_TRANSLATE_NOOP("DeviceListModel", "%1 alarm")},
    {Urgency::Warning, QT_TRANSLATE_NOOP("DeviceListModel", "%1 warning")},
    {Urgency::Notice, QT_TRANSLATE_NOOP("DeviceListModel", "%1 notice")},
    {Urgency::Normal, QT_TRANSLATE_NOOP("DeviceListModel", "%1 normal")},
};

// "Battery 87 %, Lasts 21 min, Load 34 %, "; nothing where the device is silent.
QString spokenFigures(const Device& device)
{
    QString spoken;
    if (device.link() == LinkState::Live)
        for (const DeviceFigure& figure : deviceFigures(device.reading()))
            spoken += figure.caption + QLatin1Char(' ') + figure.value + QStringLiteral(", ");
    return spoken;
}

// A tool tip would take markup for markup, so all of it is escaped. Figures that are not live are
// as faded here as elsewhere.
QString toolTipOf(const Device& device)
{
    QStringList figures;
    for (const DeviceFigure& figure : deviceFigures(device.reading()))
        figures << figure.caption + QLatin1Char(' ') + figure.value;
    const QPalette palette = QToolTip::palette();
    const QColor& text = palette.color(QPalette::ToolTipText);
    const QColor color = device.link() == LinkState::Live
                             ? text
                             : fadedColor(text, palette.color(QPalette::ToolTipBase));
    const QString data =
        dataText(device).toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>"));
    const Condition condition = device.condition();
    const QStringList said = QStringList(condition.state) + condition.alarms;
    return QStringLiteral("<qt><b>%1</b><br>%2<br><font color=\"%3\">%4</font><br>%5<br>%6</qt>")
        .arg(device.name().toHtmlEscaped(), said.join(QStringLiteral(", ")).toHtmlEscaped(),
             color.name(), figures.join(QStringLiteral("  \u00b7  ")), data,
             device.address().toHtmlEscaped());
}

} // namespace

DeviceListModel::DeviceListModel(Fleet& fleet, QObject* parent)
    : QAbstractListModel(parent)
    , m_fleet(fleet)
    , m_rows(fleet.count())
{
    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(kFlushMs);
    connect(&m_flushTimer, &QTimer::timeout, this, &DeviceListModel::flushDirty);
    connect(&fleet, &Fleet::deviceAdded, this, &DeviceListModel::addRow);
    connect(&fleet, &Fleet::deviceRemoved, this, &DeviceListModel::reset);
    connect(&fleet, &Fleet::deviceMoved, this, &DeviceListModel::reset);
    connect(&fleet, &Fleet::devicePolled, this, [this](Device* device) {
        m_dirty.insert(device);
        flushLater();
    });
}

// A fleet is added device by device; a reset for each would cost the views their place, and time.
void DeviceListModel::addRow(int row)
{
    beginInsertRows({}, row, row);
    m_rows = m_fleet.count();
    endInsertRows();
    flushLater();
}

void DeviceListModel::reset()
{
    beginResetModel();
    m_dirty.clear();
    m_rows = m_fleet.count();
    endResetModel();
    emit refreshed();
}

void DeviceListModel::flushLater()
{
    if (!m_flushTimer.isActive())
        m_flushTimer.start();
}

int DeviceListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

QVariant DeviceListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_fleet.count())
        return {};
    Device* device = m_fleet.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return device->name();
    case Qt::AccessibleTextRole:
        return QStringLiteral("%1, %2, %3")
            .arg(device->name(), device->condition().text,
                 spokenFigures(*device) + linkText(device->link(), device->ageMs()));
    case Qt::ToolTipRole: {
        return toolTipOf(*device);
    }
    case DeviceRole:
        return QVariant::fromValue(static_cast<void*>(device));
    case UrgencyRole:
        return static_cast<int>(device->condition().urgency);
    case GroupRole:
        return device->settings().group;
    case FilterRole:
        return QString(device->settings().group + QLatin1Char('\n') + device->name() +
                       QLatin1Char('\n') + device->address() + QLatin1Char('\n') +
                       device->condition().text);
    default:
        return {};
    }
}

QMap<Urgency, int> DeviceListModel::counts() const
{
    QMap<Urgency, int> counts;
    for (int i = 0; i < m_fleet.count(); ++i)
        ++counts[m_fleet.at(i)->condition().urgency];
    return counts;
}

QVector<QPair<Urgency, QString>> DeviceListModel::countWords() const
{
    const auto numbers = counts();
    QVector<QPair<Urgency, QString>> words;
    for (const CountWord& word : kCountWords)
        if (const int number = numbers.value(word.urgency))
            words << qMakePair(word.urgency, tr(word.word).arg(number));
    return words;
}

QString DeviceListModel::countsText() const
{
    QStringList words; // a line breaks between them, never between a number and its word
    for (QPair<Urgency, QString> count : countWords())
        words << count.second.replace(QLatin1Char(' '), QChar::Nbsp);
    return words.join(QStringLiteral("  \u00b7  "));
}

QModelIndex DeviceListModel::indexOf(const Device* device) const
{
    const int row = device ? m_fleet.indexOf(device) : -1;
    return row >= 0 && row < m_rows ? index(row) : QModelIndex();
}

Device* DeviceListModel::deviceAt(const QModelIndex& index)
{
    return static_cast<Device*>(index.data(DeviceRole).value<void*>());
}

void DeviceListModel::flushDirty()
{
    for (int row = 0; row < m_rows; ++row)
        if (m_dirty.contains(m_fleet.at(row)))
            emit dataChanged(index(row), index(row));
    m_dirty.clear();
    emit refreshed();
}

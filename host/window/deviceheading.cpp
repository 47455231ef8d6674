#include "window/deviceheading.h"

#include "window/urgencycolors.h"
#include "window/valuewords.h"

#include "elidedlabel.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QVBoxLayout>

namespace {

constexpr int kShortestText = 1; // characters that are never cut

// Today the time is enough; before, the day as well.
QString sinceText(const QDateTime& since)
{
    const bool today = since.date() == QDate::currentDate();
    const QString format = today ? QStringLiteral("HH:mm:ss") : QStringLiteral("yyyy-MM-dd HH:mm");
    return DeviceHeading::tr("since %1").arg(since.toString(format));
}

} // namespace

DeviceHeading::DeviceHeading(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("DeviceHeading"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 10, 16, 10);
    row->setSpacing(28);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    auto* first = new QHBoxLayout;
    first->setSpacing(10);
    m_name = new ElidedLabel({}, kShortestText);
    m_name->setObjectName(QStringLiteral("HeadingName"));
    m_condition = new ElidedLabel({}, kShortestText);
    m_condition->setObjectName(QStringLiteral("HeadingCondition"));
    m_since = new ElidedLabel({}, kShortestText);
    m_since->setObjectName(QStringLiteral("HeadingSmall"));
    first->addWidget(m_condition);
    first->addWidget(m_since);
    first->addStretch(1);
    m_age = new ElidedLabel({}, kShortestText);
    m_age->setObjectName(QStringLiteral("HeadingSmall"));
    m_notes = new ElidedLabel({}, kShortestText);
    m_notes->setObjectName(QStringLiteral("HeadingSmall"));
    texts->addWidget(m_name);
    texts->addLayout(first);
    texts->addWidget(m_age);
    texts->addWidget(m_notes);
    row->addLayout(texts, 1);

    m_charge = addFigure(tr("Battery"));
    m_runtime = addFigure(tr("Lasts"));
    m_load = addFigure(tr("Load"));
}

QLabel* DeviceHeading::addFigure(const QString& caption)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    auto* figure = new QLabel;
    figure->setTextFormat(Qt::PlainText);
    figure->setObjectName(QStringLiteral("HeadingFigure"));
    figure->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    figure->setAccessibleName(caption);
    auto* label = new QLabel(caption);
    label->setObjectName(QStringLiteral("HeadingSmall"));
    label->setAlignment(Qt::AlignRight | Qt::AlignTop);
    column->addStretch(1);
    column->addWidget(figure);
    column->addWidget(label);
    column->addStretch(1);
    static_cast<QHBoxLayout*>(layout())->addLayout(column);
    return figure;
}

void DeviceHeading::show(const Device& device)
{
    const UpsReading* reading = device.reading();
    const Condition condition = device.condition();
    m_name->setText(device.name());
    m_condition->setText(condition.text);
    // Styling anew costs, and ages are told every second.
    const QString color = urgencyTextColor(condition.urgency, palette()).name();
    if (color != m_conditionColor) {
        m_conditionColor = color;
        m_condition->setStyleSheet(QStringLiteral("color: %1;").arg(color));
    }
    m_since->setText(sinceText(device.conditionSince()));
    m_age->setText(linkText(device.link(), device.ageMs()) + QStringLiteral("  \u00b7  ") +
                   device.address());
    const QString notes =
        reading ? (readingNotes(*reading) + reading->alarmTexts).join(QStringLiteral("  \u00b7  "))
                : QString();
    m_notes->setVisible(!notes.isEmpty());
    m_notes->setText(notes);
    m_charge->setText(chargeText(reading));
    m_runtime->setText(runtimeText(reading));
    m_load->setText(loadText(reading));
}

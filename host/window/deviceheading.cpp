#include "window/deviceheading.h"

#include "window/devicesummary.h"
#include "window/plainlabel.h"
#include "window/urgencycolors.h"

#include "elidedlabel.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWhatsThis>

namespace {

// px
constexpr int kMargin = 16;
constexpr int kFigureGap = 28;
constexpr int kStateGap = 10;
constexpr std::size_t kFiguresLastToGo[] = {1, 0, 2}; // what is left counts most

constexpr int kShortestText = 1; // characters that are never cut
constexpr int kMostAlarms = 4;   // in words; the alarm page has them all

// Styling anew costs, and ages are told every second.
void styleAs(QWidget* widget, const QString& style)
{
    if (widget->styleSheet() != style)
        widget->setStyleSheet(style);
}

} // namespace

DeviceHeading::DeviceHeading(QWidget* parent)
    : QFrame(parent)
    , m_alarms(new PlainLabel)
    , m_notes(new QToolButton)
{
    setObjectName(QStringLiteral("DeviceHeading"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin, 10, kMargin, 10);
    row->setSpacing(kFigureGap);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    row->addLayout(texts, 1);
    m_name = addLine(texts, "HeadingName");
    texts->addLayout(makeStateLine());
    m_alarms->setObjectName(QStringLiteral("HeadingAlarms"));
    texts->addWidget(m_alarms);
    texts->addLayout(makeAgeLine());
    std::size_t number = 0;
    for (const DeviceFigure& figure : deviceFigures(nullptr))
        row->addWidget(makeFigure(m_figures[number++], figure.caption));
}

ElidedLabel* DeviceHeading::addLine(QLayout* layout, const char* name)
{
    auto* label = new ElidedLabel({}, kShortestText);
    label->setObjectName(QLatin1String(name));
    layout->addWidget(label);
    return label;
}

QLayout* DeviceHeading::makeStateLine()
{
    auto* line = new QHBoxLayout;
    line->setSpacing(kStateGap);
    m_condition = addLine(line, "HeadingCondition");
    m_since = addLine(line, "HeadingSmall");
    line->addStretch(1);
    return line;
}

QLayout* DeviceHeading::makeAgeLine()
{
    auto* line = new QHBoxLayout;
    line->setSpacing(10);
    m_age = addLine(line, "HeadingSmall");
    m_notes->setObjectName(QStringLiteral("HeadingNotes"));
    m_notes->setText(QStringLiteral("i"));
    m_notes->setFocusPolicy(Qt::StrongFocus);
    line->addWidget(m_notes);
    line->addStretch(1);
    connect(m_notes, &QToolButton::clicked, this, [this] {
        QWhatsThis::showText(m_notes->mapToGlobal(m_notes->rect().bottomLeft()), m_notes->toolTip(),
                             m_notes);
    });
    return line;
}

QWidget* DeviceHeading::makeFigure(QLabel*& figure, const QString& caption)
{
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    figure = new QLabel;
    figure->setTextFormat(Qt::PlainText);
    figure->setObjectName(QStringLiteral("HeadingFigure"));
    figure->setAlignment(Qt::AlignRight | Qt::AlignBottom);
    auto* label = new QLabel(caption);
    label->setObjectName(QStringLiteral("HeadingSmall"));
    label->setAlignment(Qt::AlignRight | Qt::AlignTop);
    column->addStretch(1);
    column->addWidget(figure);
    column->addWidget(label);
    column->addStretch(1);
    return box;
}

// At a narrow width the condition stays whole: first "since" goes, then the figures.
void DeviceHeading::fitWidth()
{
    int room = width() - 2 * kMargin - m_condition->sizeHint().width();
    for (std::size_t number : kFiguresLastToGo) {
        QWidget* box = m_figures[number]->parentWidget();
        const int needed = box->sizeHint().width() + kFigureGap;
        box->setVisible(needed <= room);
        room -= box->isHidden() ? 0 : needed;
    }
    m_since->setVisible(m_since->sizeHint().width() + kStateGap <= room);
}

void DeviceHeading::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    fitWidth();
}

void DeviceHeading::show(const Device& device)
{
    m_name->setText(device.name());
    showCondition(device.condition());
    m_since->setText(sinceText(device.conditionSince()));
    const QString age =
        m_isReplay ? tr("recorded") : dataText(device).section(QLatin1Char('\n'), -1);
    m_age->setText(age + QStringLiteral("  \u00b7  ") + device.address());
    showFigures(device);
    showNotes(device.reading());
    fitWidth();
}

void DeviceHeading::showCondition(const Condition& condition)
{
    const auto colored = [this](Urgency urgency) {
        return QStringLiteral("color: %1;").arg(urgencyTextColor(urgency, palette()).name());
    };
    m_condition->setText(condition.state);
    styleAs(m_condition, colored(condition.urgency));

    QStringList alarms = condition.alarms.mid(0, kMostAlarms);
    if (const int more = condition.alarms.size() - alarms.size(); more > 0)
        alarms << tr("and %1 more").arg(more);
    m_alarms->setVisible(!alarms.isEmpty());
    m_alarms->setText(alarms.join(QStringLiteral("  \u00b7  ")));
    styleAs(m_alarms, colored(condition.alarmUrgency));
}

void DeviceHeading::showFigures(const Device& device)
{
    const bool live = device.link() == LinkState::Live && !m_isReplay;
    const QColor text = palette().color(QPalette::WindowText);
    const QColor faded = fadedColor(text, palette().color(QPalette::Base));
    std::size_t number = 0;
    for (const DeviceFigure& figure : deviceFigures(device.reading())) {
        QLabel* label = m_figures[number++];
        label->setText(figure.value);
        label->setAccessibleName(figure.caption + QLatin1Char(' ') + figure.value);
        styleAs(label, live ? QString()
                            : QStringLiteral("color: %1; font-weight: normal;").arg(faded.name()));
    }
}

void DeviceHeading::showNotes(const UpsReading* reading)
{
    const QStringList notes = reading ? readingNotes(*reading) : QStringList();
    m_notes->setVisible(!notes.isEmpty());
    if (notes.join(QLatin1Char(' ')) == m_notes->accessibleName())
        return;
    m_notes->setAccessibleName(notes.join(QLatin1Char(' ')));
    QString tip;
    for (const QString& note : notes)
        tip += QStringLiteral("<p>%1</p>").arg(note.toHtmlEscaped());
    m_notes->setToolTip(QStringLiteral("<qt>%1</qt>").arg(tip));
}

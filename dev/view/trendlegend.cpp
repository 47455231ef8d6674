#include "trendlegend.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVariant>

namespace {

constexpr int kSeriesOfScale = 3;
constexpr int kSpacing = 4; // px
constexpr int kEntrySpacing = 6;
constexpr QMargins kEntryMargins{6, 3, 6, 3};
constexpr int kLeastLine = 16; // px, of the line in the curve's colour
constexpr int kLineWidth = 3;
constexpr int kLeastRest = 8;

// By series id: the style sheet in the curve's colour, and the ground on which that can be read.
struct Look {
    const char* colour;
    const char* ground;
};
constexpr Look kLooks[] = {
    {"color: rgb(255, 255, 0);", "dark"}, {"color: rgb(0, 255, 0);", "dark"},
    {"color: rgb( 255, 0,0);", "dark"},   {"color: rgb(255, 221, 26);", "dark"},
    {"color: rgb(85, 170, 0);", "dark"},  {"color: rgb(170, 0, 0);", "light"},
};

constexpr char kStyleSheet[] =
    "QLabel { font: 8pt \"Microsoft YaHei\"; color: black; }\n"
    "QFrame[legend=\"dark\"] { background-color: rgb(16, 20, 26); border: 1px solid "
    "rgb(128, 136, 150); border-radius: 4px; }\n"
    "QFrame[legend=\"light\"] { background-color: rgb(250, 250, 250); border: 1px solid "
    "rgb(128, 136, 150); border-radius: 4px; }";

QLabel* makeLabel(const QString& name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QFrame* makeLine(const QString& name, QWidget* parent)
{
    auto* line = new QFrame(parent);
    line->setObjectName(name);
    line->setMinimumWidth(kLeastLine);
    line->setFrameStyle(QFrame::HLine | QFrame::Plain);
    line->setLineWidth(kLineWidth);
    return line;
}

} // namespace

TrendLegend::TrendLegend(const char* leftScaleName, const char* rightScaleName, QWidget* parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    setStyleSheet(QLatin1String(kStyleSheet));
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(kSpacing);
    for (int column = 1; column <= kSeriesOfScale; ++column)
        m_grid->setColumnStretch(column, 1);
    int row = 0;
    for (const char* name : {leftScaleName, rightScaleName}) {
        QLabel* scale = makeLabel(QLatin1String(name), this);
        scale->setText(row == 0 ? tr("Left scale:") : tr("Right scale:"));
        m_grid->addWidget(scale, row++, 0);
    }
}

TrendLegend::Entry TrendLegend::add(int series, const QString& captionName, const char* valueName,
                                    const QString& lineName)
{
    const Look& look = kLooks[series];
    auto* frame = new QFrame(this);
    frame->setProperty("legend", QLatin1String(look.ground));
    auto* row = new QHBoxLayout(frame);
    row->setSpacing(kEntrySpacing);
    row->setContentsMargins(kEntryMargins);
    const Entry entry{makeLabel(captionName, frame), makeLabel(QLatin1String(valueName), frame)};
    for (QWidget* part :
         {static_cast<QWidget*>(makeLine(lineName, frame)), static_cast<QWidget*>(entry.caption),
          static_cast<QWidget*>(entry.value)}) {
        part->setStyleSheet(QLatin1String(look.colour));
        row->addWidget(part);
    }
    row->addItem(new QSpacerItem(kLeastRest, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    m_grid->addWidget(frame, series / kSeriesOfScale, 1 + series % kSeriesOfScale);
    return entry;
}

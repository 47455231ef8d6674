#include "window/replaybar.h"

#include "elidedlabel.h"

#include <QComboBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

namespace {

constexpr int kMsPerSecond = 1000;
constexpr int kSpeeds[] = {1, 10, 100};
constexpr int kKeyStep = 60; // s, by the arrow keys
constexpr int kTimeCharacters = 30;
constexpr int kPageStep = 900; // s, by the page keys

QString timeText(qint64 timeMs)
{
    return QDateTime::fromMSecsSinceEpoch(timeMs).toString(
        QStringLiteral("ddd yyyy-MM-dd HH:mm:ss t"));
}

} // namespace

ReplayBar::ReplayBar(ReplayPlayer& player, QWidget* parent)
    : QFrame(parent)
    , m_player(player)
    , m_time(new ElidedLabel({}, kTimeCharacters))
    , m_range(new ElidedLabel({}, 0))
    , m_slider(new QSlider(Qt::Horizontal))
    , m_speed(new QComboBox)
    , m_live(new QPushButton(tr("Back to &live")))
{
    setObjectName(QStringLiteral("ReplayBar"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 6, 16, 6);
    column->setSpacing(4);
    column->addLayout(makeHead());
    column->addLayout(makeControls());
    connect(&player, &ReplayPlayer::opened, this, &ReplayBar::showRange);
    connect(&player, &ReplayPlayer::changed, this, &ReplayBar::showTime);
    connect(&player, &ReplayPlayer::failed, this, &ReplayBar::say);
    say(tr("Reading \u2026"));
}

QLayout* ReplayBar::makeHead()
{
    auto* mark = new QLabel(tr("REPLAY"));
    mark->setObjectName(QStringLiteral("ReplayMark"));
    m_time->setObjectName(QStringLiteral("ReplayTime"));
    m_range->setObjectName(QStringLiteral("ReplayRange"));
    m_range->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_live->setObjectName(QStringLiteral("btnBlue"));
    connect(m_live, &QPushButton::clicked, this, &ReplayBar::liveWanted);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(mark);
    row->addWidget(m_time);
    row->addWidget(m_range, 1);
    row->addWidget(m_live);
    return row;
}

QToolButton* ReplayBar::addButton(QLayout* row, const char* name, const QString& text,
                                  const QString& tip)
{
    auto* button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(button);
    return button;
}

QLayout* ReplayBar::makeControls()
{
    auto* row = new QHBoxLayout;
    auto* back =
        addButton(row, "ReplayBack", QStringLiteral("|\u25c0"), tr("To the reading before"));
    m_play = addButton(row, "ReplayPlay", QStringLiteral("\u25b6"), tr("Play"));
    auto* forward =
        addButton(row, "ReplayForward", QStringLiteral("\u25b6|"), tr("To the next reading"));
    connect(back, &QToolButton::clicked, &m_player, [this] { m_player.step(false); });
    connect(forward, &QToolButton::clicked, &m_player, [this] { m_player.step(true); });
    connect(m_play, &QToolButton::clicked, &m_player, [this] {
        if (m_player.isPlaying())
            m_player.pause();
        else
            m_player.play();
    });
    m_speed->setObjectName(QStringLiteral("ReplaySpeed"));
    m_speed->setAccessibleName(tr("Speed"));
    for (int speed : kSpeeds)
        m_speed->addItem(tr("%1x").arg(speed), speed);
    connect(m_speed, QOverload<int>::of(&QComboBox::currentIndexChanged), &m_player,
            [this] { m_player.setSpeed(m_speed->currentData().toInt()); });
    m_slider->setObjectName(QStringLiteral("ReplaySlider"));
    m_slider->setAccessibleName(tr("Time"));
    m_slider->setSingleStep(kKeyStep);
    m_slider->setPageStep(kPageStep);
    connect(m_slider, &QSlider::valueChanged, &m_player, [this](int seconds) {
        m_player.seek(m_player.range().fromMs + qint64{seconds} * kMsPerSecond);
    });
    row->addWidget(m_speed);
    row->addWidget(m_slider, 1);
    return row;
}

void ReplayBar::say(const QString& text)
{
    m_time->setText(text);
    setAccessibleName(tr("Replay: %1").arg(text));
}

void ReplayBar::showRange()
{
    const TimeRange range = m_player.range();
    const QSignalBlocker quiet(m_slider);
    m_slider->setRange(0, static_cast<int>((range.toMs - range.fromMs) / kMsPerSecond));
    m_range->setText(tr("stored since %1").arg(timeText(range.fromMs)));
}

void ReplayBar::showTime()
{
    say(timeText(m_player.timeMs()));
    m_play->setText(m_player.isPlaying() ? QStringLiteral("\u2016") : QStringLiteral("\u25b6"));
    m_play->setToolTip(m_player.isPlaying() ? tr("Pause") : tr("Play"));
    m_play->setAccessibleName(m_play->toolTip());
    if (m_slider->isSliderDown())
        return;
    const QSignalBlocker quiet(m_slider);
    m_slider->setValue(
        static_cast<int>((m_player.timeMs() - m_player.range().fromMs) / kMsPerSecond));
}

#include "window/trayicon.h"

#include "window/urgencycolors.h"

#include <QAction>
#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QMenu>
#include <QPainter>

namespace {

constexpr int kIconSide = 64; // px; trays scale it down
constexpr int kMost = 99;     // what fits the disc

QIcon iconOf(Urgency worst, int count)
{
    QPixmap pixmap(kIconSide, kIconSide);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(urgencyColor(worst));
    painter.drawEllipse(QRectF(pixmap.rect()).adjusted(2, 2, -2, -2));
    if (count > 0) {
        QFont font = painter.font();
        font.setBold(true);
        font.setPixelSize(count > 9 ? kIconSide / 2 : kIconSide * 2 / 3);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(pixmap.rect(), Qt::AlignCenter, QString::number(qMin(count, kMost)));
    }
    return pixmap;
}

} // namespace

TrayIcon::TrayIcon(const Attention& attention, QWidget& window, bool isMuted)
    : m_attention(attention)
    , m_window(window)
    , m_menu(std::make_unique<QMenu>())
{
    connect(m_menu->addAction(tr("&Show the desk")), &QAction::triggered, this,
            &TrayIcon::showWindow);
    QAction* mute = m_menu->addAction(tr("&Mute sounds"));
    mute->setCheckable(true);
    mute->setChecked(isMuted);
    connect(mute, &QAction::toggled, this, &TrayIcon::muted);
    connect(m_menu->addAction(tr("&Quit")), &QAction::triggered, &window, &QWidget::close);
    m_icon.setContextMenu(m_menu.get());
    connect(&m_icon, &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger)
                    showWindow();
            });
    connect(&attention, &Attention::changed, this, &TrayIcon::refresh);
    refresh();
    if (QSystemTrayIcon::isSystemTrayAvailable())
        m_icon.show();
}

TrayIcon::~TrayIcon() = default;

void TrayIcon::showWindow()
{
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
}

void TrayIcon::refresh()
{
    m_icon.setIcon(iconOf(m_attention.worst(), m_attention.count()));
    m_icon.setToolTip(m_attention.text());
    tellTaskBar();
}

// The signal that docks and task bars listen to for a count on the program's button.
void TrayIcon::tellTaskBar() const
{
    QDBusMessage update = QDBusMessage::createSignal(
        QStringLiteral("/upsdesk"), QStringLiteral("com.canonical.Unity.LauncherEntry"),
        QStringLiteral("Update"));
    update << QStringLiteral("application://upsdesk.desktop")
           << QVariantMap{{QStringLiteral("count"), static_cast<qlonglong>(m_attention.count())},
                          {QStringLiteral("count-visible"), m_attention.count() > 0},
                          {QStringLiteral("urgent"), m_attention.worst() >= Urgency::Alarm}};
    QDBusConnection::sessionBus().send(update);
}

#include "window/notifytests.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace {

struct ButtonRow {
    Notifier::Channel channel;
    const char* name;
    const char* text;
};

constexpr ButtonRow kButtons[] = {
    {Notifier::Desktop, "testDesktop", QT_TRANSLATE_NOOP("NotifyTests", "Test desktop")},
    {Notifier::Command, "testCommand", QT_TRANSLATE_NOOP("NotifyTests", "Test command")},
    {Notifier::Webhook, "testWebhook", QT_TRANSLATE_NOOP("NotifyTests", "Test webhook")},
};

} // namespace

NotifyTests::NotifyTests(const Settings& settings, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
{
    auto* row = new QHBoxLayout(this);
    for (const ButtonRow& button : kButtons) {
        auto* made = new QPushButton(tr(button.text));
        made->setObjectName(QLatin1String(button.name));
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, [this, &button] { tryOut(button.channel); });
        row->addWidget(made);
    }
    row->addStretch(1);
}

void NotifyTests::tryOut(Notifier::Channel channel)
{
    const QString name = Notifier::channelName(channel);
    m_tried = Notifier::makeChannel(channel, m_settings());
    if (!m_tried) {
        emit said(tr("%1: it is not set up.").arg(name), true);
        return;
    }
    connect(m_tried.get(), &NotifyChannel::delivered, this,
            [this, name] { emit said(tr("%1: the trial was delivered.").arg(name), false); });
    connect(m_tried.get(), &NotifyChannel::failed, this,
            [this](const QString& reason) { emit said(reason, true); });
    emit said(tr("%1: trying ...").arg(name), false);
    m_tried->tell(Notifier::trial());
}

#ifndef NOTIFYTESTS_H
#define NOTIFYTESTS_H

// A button for each way of being told, which tries it out as it is set now.
// May touch: Qt Widgets, the channels of notifications.

#include "notify/notifier.h"

#include <QWidget>

class NotifyTests : public QWidget
{
    Q_OBJECT

public:
    using Settings = std::function<NotifySettings()>;

    explicit NotifyTests(const Settings& settings, QWidget* parent = nullptr);

signals:
    // How a trial ended, plain text.
    void said(const QString& text, bool isBad);

private:
    void tryOut(Notifier::Channel channel);

    const Settings m_settings;
    std::unique_ptr<NotifyChannel> m_tried; // the last one; a further trial takes its place
};

#endif // NOTIFYTESTS_H

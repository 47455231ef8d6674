#include "window/attention.h"

#include <algorithm>

Attention::Attention(Fleet& fleet, QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
{
    // Once a second is soon enough, however many devices are polled meanwhile.
    connect(&fleet, &Fleet::ticked, this, &Attention::look);
    look();
}

QString Attention::text() const
{
    if (m_count == 0)
        return tr("%n UPS(es), none needs attention", nullptr, m_devices);
    return tr("%1 of %n UPS(es) need attention", nullptr, m_devices).arg(m_count);
}

void Attention::look()
{
    int count = 0;
    Urgency worst = Urgency::Normal;
    for (int i = 0; i < m_fleet.count(); ++i) {
        const Urgency urgency = m_fleet.at(i)->condition().urgency;
        count += urgency >= Urgency::Warning;
        worst = std::max(worst, urgency);
    }
    const int devices = m_fleet.count();
    if (count == m_count && worst == m_worst && devices == m_devices)
        return;
    m_count = count;
    m_worst = worst;
    m_devices = devices;
    emit changed();
}

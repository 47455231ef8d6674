#include "fleet/connectiontest.h"

ConnectionTest::ConnectionTest(const Fleet::ConnectorMaker& maker, const DeviceSettings& settings,
                               QObject* parent)
    : QObject(parent)
    , m_device(settings, maker(settings), FleetClock::system(), 0)
    , m_poll(m_device)
{
    connect(&m_poll, &SinglePoll::finished, this, &ConnectionTest::finished);
}

#include "fleet/connectiontest.h"

namespace {

constexpr int kLimitCheckMs = 500;

} // namespace

ConnectionTest::ConnectionTest(const Fleet::ConnectorMaker& maker, const DeviceSettings& settings,
                               QObject* parent)
    : QObject(parent)
    , m_device(settings, maker(settings), FleetClock::system(), 0)
{
    m_limitTimer.setInterval(kLimitCheckMs);
    connect(&m_limitTimer, &QTimer::timeout, &m_device, &Device::checkPollLimit);
    connect(&m_device, &Device::polled, this, [this] {
        if (!m_limitTimer.isActive())
            return; // the late answer of a poll that was given up
        m_limitTimer.stop();
        emit finished();
    });
}

void ConnectionTest::start()
{
    m_limitTimer.start();
    m_device.startPoll();
}

#include "fleet/singlepoll.h"

namespace {

constexpr int kLimitCheckMs = 500;

} // namespace

SinglePoll::SinglePoll(Device& device, QObject* parent)
    : QObject(parent)
    , m_device(device)
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

void SinglePoll::start()
{
    m_limitTimer.start();
    m_device.startPoll();
}

#include "fleet/rangescan.h"

#include <algorithm>

RangeScan::RangeScan(const Fleet::ConnectorMaker& maker, const QVector<DeviceSettings>& candidates,
                     QObject* parent)
    : QObject(parent)
    , m_maker(maker)
    , m_candidates(candidates)
{}

RangeScan::~RangeScan() = default;

void RangeScan::start()
{
    for (int i = 0; i < std::min(kAtATime, m_candidates.size()); ++i)
        askNext();
    if (m_candidates.isEmpty())
        emit finished();
}

void RangeScan::askNext()
{
    if (m_begun == m_candidates.size())
        return;
    auto* test = new ConnectionTest(m_maker, m_candidates.at(m_begun++), this);
    connect(test, &ConnectionTest::finished, this, [this, test] { take(test); });
    test->start();
}

void RangeScan::take(ConnectionTest* test)
{
    const Device& device = test->device();
    if (device.link() != LinkState::Lost)
        emit found(device.settings(), device);
    test->deleteLater(); // it is the one that is speaking
    emit progressed(++m_done, m_candidates.size());
    askNext();
    if (m_done == m_candidates.size())
        emit finished();
}

#include "connectors/nut/nutdevices.h"

#include "reading/sanitize.h"

namespace {

// What the server says where its administrator wrote no description.
constexpr char kNoDescription[] = "Description unavailable";

} // namespace

std::optional<NutQuestion> NutDevices::next()
{
    if (m_asked)
        return {};
    NutQuestion question;
    question.line = "LIST UPS";
    return question;
}

void NutDevices::take(const NutReply& reply)
{
    m_asked = true;
    m_failure = reply.failure;
    for (const NutWords& row : reply.rows) {
        const bool hasText = row.value(2) != kNoDescription;
        m_devices << NutUpsEntry{cleanDeviceText(row.at(1)),
                                 hasText ? cleanDeviceText(row.value(2)) : QString()};
    }
}

QByteArray NutDevices::onlyOne(NutFailure& failure) const
{
    failure = m_failure;
    if (failure)
        return {};
    if (m_devices.size() == 1)
        return m_devices.first().name.toUtf8();
    QStringList names;
    for (const NutUpsEntry& device : m_devices)
        names << device.name;
    constexpr int kMostNames = 20;
    if (names.size() > kMostNames)
        names = names.mid(0, kMostNames) << QStringLiteral("...");
    failure = {LinkState::Refused, "NAME-REQUIRED",
               names.isEmpty()
                   ? tr("The server has no UPS.")
                   : tr("The server has several devices; put the name of one at the end of the "
                        "address: %1.")
                         .arg(names.join(QStringLiteral(", ")))};
    return {};
}

#ifndef NUTDEVICES_H
#define NUTDEVICES_H

// Which devices a NUT server has, and which one is meant by an address without a name.
// May touch: dialogues, the protocol's words, readings. No socket.

#include "connectors/nut/nutdialogue.h"

#include <QCoreApplication>
#include <QVector>

class NutDevices : public NutDialogue
{
    Q_DECLARE_TR_FUNCTIONS(NutDevices)

public:
    // server: "HOST port PORT", for messages.
    explicit NutDevices(const QString& server)
        : m_server(server)
    {}

    std::optional<NutQuestion> next() override;
    void take(const NutReply& reply) override;

    const NutFailure& failure() const { return m_failure; }
    const QVector<NutUpsEntry>& devices() const { return m_devices; }
    // The name of the only device; else why there is none to choose, in `failure`.
    QByteArray onlyOne(NutFailure& failure) const;

private:
    const QString m_server;
    bool m_asked = false;
    NutFailure m_failure;
    QVector<NutUpsEntry> m_devices;
};

#endif // NUTDEVICES_H

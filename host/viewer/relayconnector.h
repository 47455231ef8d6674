#ifndef RELAYCONNECTOR_H
#define RELAYCONNECTOR_H

// The connector of a device that the collector of a site polls: from here there is no way to it.
// May touch: connectors by their base class.

#include "connectors/connector.h"

#include <memory>

struct DeviceSettings;

class RelayConnector : public Connector
{
public:
    static std::unique_ptr<Connector> make(const DeviceSettings& settings);

    explicit RelayConnector(const QString& site)
        : m_site(site)
    {}
    void poll() override;
    void send(const UpsCommand& command) override;

    // For the operator.
    static QString noCommands();

private:
    const QString m_site;
};

#endif // RELAYCONNECTOR_H

#include "viewer/relayconnector.h"

#include "connectors/devicesettings.h"

#include <QCoreApplication>
#include <QTimer>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(RelayConnector)
};

} // namespace

std::unique_ptr<Connector> RelayConnector::make(const DeviceSettings& settings)
{
    return std::make_unique<RelayConnector>(settings.site);
}

void RelayConnector::poll()
{
    PollResult result;
    result.state = LinkState::Refused;
    result.message = Tr::tr("This desk is a viewer: it polls nothing, the collector of %1 does.")
                         .arg(m_site.isEmpty() ? Tr::tr("this device") : m_site);
    QTimer::singleShot(0, this, [this, result] { emit polled(result); });
}

void RelayConnector::send(const UpsCommand& command)
{
    CommandResult result;
    result.id = command.id;
    result.outcome = CommandOutcome::Refused;
    result.message = noCommands();
    QTimer::singleShot(0, this, [this, result] { emit commandFinished(result); });
}

QString RelayConnector::noCommands()
{
    return Tr::tr("This desk is a viewer and has no way to the device: commands are given at a "
                  "desk that polls it itself.");
}

#include "config/checkconfig.h"

#include "config/deskconfig.h"

#include <QCoreApplication>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(CheckConfig)
};

} // namespace

ConfigFaults checkConfig(const QString& path)
{
    const DeskConfig config = DeskConfig::load(path);
    ConfigFaults faults = config.faults();
    if (config.document().isNew() && faults.isEmpty())
        faults += {0, ConfigSeverity::Warning,
                   Tr::tr("there is no file %1; the defaults apply").arg(path)};
    return faults;
}

#include "connectors/snmp/snmpengine.h"

#include <net-snmp/net-snmp-config.h>

#include <net-snmp/net-snmp-includes.h>

#include <QCoreApplication>

#include <mutex>

namespace {

constexpr char kApplication[] = "upsdesk";

// Nothing but what the configuration of upsdesk says: no MIB files, no files of the library's own,
// read or written, and no messages on the terminal.
void startLibrary()
{
    snmp_disable_log();
    netsnmp_register_loghandler(NETSNMP_LOGHANDLER_NONE, LOG_DEBUG);
    for (const int option :
         {NETSNMP_DS_LIB_DONT_READ_CONFIGS, NETSNMP_DS_LIB_DONT_PERSIST_STATE,
          NETSNMP_DS_LIB_DISABLE_PERSISTENT_LOAD, NETSNMP_DS_LIB_DISABLE_PERSISTENT_SAVE,
          NETSNMP_DS_LIB_DONT_LOAD_HOST_FILES})
        netsnmp_ds_set_boolean(NETSNMP_DS_LIBRARY_ID, option, 1);
    // A place where no file can be, for the files that the options above do not cover.
    netsnmp_ds_set_string(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_PERSISTENT_DIR, "/dev/null");
    netsnmp_set_mib_directory("");
    char noModules[] = "mibs :";
    netsnmp_config_remember(noModules);
    init_snmp(kApplication);
}

} // namespace

std::shared_ptr<SnmpEngine> SnmpEngine::instance()
{
    static std::weak_ptr<SnmpEngine> running;
    std::shared_ptr<SnmpEngine> engine = running.lock();
    if (!engine) {
        engine = std::make_shared<SnmpEngine>();
        engine->setObjectName(QStringLiteral("snmp"));
        engine->start();
        running = engine;
    }
    return engine;
}

SnmpEngine::~SnmpEngine()
{
    quit();
    wait();
}

void SnmpEngine::run()
{
    // Once in the life of the process: starting the library anew loses memory each time, and with
    // nothing to save there is nothing to shut down but the sessions, which their devices close.
    static std::once_flag started;
    std::call_once(started, startLibrary);
    exec();
    // Devices that were let go are still to be deleted here, their sockets after them.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_ports.clear();
}

#include "cli/storedhistory.h"

#include "cli/clisupport.h"
#include "config/deskconfig.h"
#include "connectors/deviceaddress.h"
#include "history/deskhistory.h"
#include "history/historytext.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEventLoop>

namespace {

// With its secret, where it has one; what goes wrong with that is said.
StoreAddress completed(StoreAddress store, SecretsChoice choice)
{
    const auto secrets = SecretStore::make(choice);
    QEventLoop loop;
    bool isReady = false;
    withStoreSecret(store, *secrets, &loop, [&](const StoreAddress& address, const QString& fault) {
        if (!fault.isEmpty())
            printError(fault);
        store = address;
        isReady = true;
        loop.quit();
    });
    if (!isReady)
        loop.exec();
    return store;
}

} // namespace

std::unique_ptr<HistoryStore> openStoredHistory()
{
    const DeskSettings settings = DeskConfig::load().settings();
    const ParsedStore store = storeOf(settings.history);
    if (!store.error.isEmpty()) {
        printError(store.error);
        return nullptr;
    }
    auto opened = HistoryStore::make(completed(store.address, settings.secrets));
    if (opened->open(HistoryStore::Access::Read))
        return opened;
    printError(opened->errorText());
    return nullptr;
}

std::optional<StoredDevice> storedDevice(HistoryStore& store, const QString& nameOrAddress)
{
    HistoryQueries queries(store);
    auto device = queries.device(nameOrAddress);
    const ParsedAddress parsed = parseDeviceAddress(nameOrAddress);
    if (!device && parsed.address)
        device = queries.device(shownAddress(*parsed.address));
    if (!queries.errorText().isEmpty())
        printError(queries.errorText());
    else if (!device)
        printError(QCoreApplication::translate("StoredHistory", "nothing is stored of %1")
                       .arg(nameOrAddress));
    return device;
}

std::optional<qint64> timeOption(const QString& option, const QString& text, qint64 absent)
{
    if (text.isEmpty())
        return absent;
    const auto time = timeOf(text, QDateTime::currentMSecsSinceEpoch());
    if (!time)
        printError(QCoreApplication::translate(
                       "StoredHistory", "--%1 takes a time as 2026-03-29T14:00 or an age as 36h")
                       .arg(option));
    return time;
}

// What a long list of devices costs: editing one of them, and starting with their secrets in a
// file. May touch: everything of upsdesk but its window.

#include "fleet/watchlist.h"
#include "secrets/filesecretstore.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

// What is asked of upsdesk.
constexpr double kMostEditMs = 50;
constexpr double kMostStartMs = 1000;

constexpr int kEdits = 20;

// Never answers: only the list is measured.
class SilentConnector : public Connector
{
public:
    void poll() override {}
    void send(const UpsCommand&) override {}
};

QByteArray configOf(int devices)
{
    QByteArray bytes = "[secrets]\nstore = file\n";
    for (int i = 0; i < devices; ++i)
        bytes += "\n# in the cellar\n[device \"Rack " + QByteArray::number(i) +
                 "\"]\naddress = snmp://anna@10.0." + QByteArray::number(i / 250) + "." +
                 QByteArray::number(i % 250) + "?version=3&level=authPriv&auth=SHA&priv=AES\n" +
                 "interval = 10\n";
    return bytes;
}

void writeConfig(const QString& path, int devices)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(configOf(devices));
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

void writeSecrets(const QString& path, const QVector<DeviceSettings>& devices)
{
    SecretStore::Errands errands;
    for (const DeviceSettings& device : devices)
        for (SecretPurpose purpose : neededSecrets(device))
            errands += {SecretStore::Action::Write, secretKey(device.name, purpose),
                        SecretText(QStringLiteral("a secret of some length"))};
    FileSecretStore store(path);
    bool written = false;
    store.run(errands, &store, [&](const SecretStore::Results&) { written = true; });
    while (!written)
        QCoreApplication::processEvents();
}

bool lacksAny(const Fleet& fleet)
{
    for (int i = 0; i < fleet.count(); ++i)
        if (lacksSecrets(fleet.at(i)->settings()))
            return true;
    return false;
}

bool report(const char* what, double ms, double mostMs)
{
    std::printf("%-44s %8.1f ms   (at most %.0f)%s\n", what, ms, mostMs,
                ms <= mostMs ? "" : "   TOO SLOW");
    return ms <= mostMs;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption count("devices", "Devices in the list.", "N", "2000");
    parser.addOption(count);
    parser.process(app);
    const int devices = parser.value(count).toInt();

    const QTemporaryDir folder;
    const QString path = folder.filePath("upsdesk.conf");
    const QString secrets = folder.filePath("secrets.json");
    writeConfig(path, devices);
    writeSecrets(secrets, DeskConfig::load(path).devices());

    QElapsedTimer timer;
    timer.start();
    Fleet fleet([](const DeviceSettings&) { return std::make_unique<SilentConnector>(); });
    WatchList list(fleet, DeskConfig::load(path),
                   [&](SecretsChoice) { return std::make_unique<FileSecretStore>(secrets); });
    list.load();
    const double loadMs = double(timer.nsecsElapsed()) / 1e6;
    while (lacksAny(fleet))
        QCoreApplication::processEvents();
    const double startMs = double(timer.nsecsElapsed()) / 1e6;

    double longestMs = 0;
    for (int i = 0; i < kEdits; ++i) {
        Device* device = fleet.at(i * devices / kEdits);
        DeviceSettings settings = device->settings();
        settings.pollInterval += 1;
        settings.name += QStringLiteral(" b");
        timer.restart();
        const QString reason = list.change(device, settings);
        longestMs = std::max(longestMs, double(timer.nsecsElapsed()) / 1e6);
        if (!reason.isEmpty())
            std::printf("refused: %s\n", qPrintable(reason));
        QCoreApplication::processEvents();
    }
    std::printf("%d devices, two secrets each in a file; list alone %.1f ms\n", devices, loadMs);
    const bool fastStart =
        report("start until every device has its secrets", startMs, kMostStartMs);
    const bool fastEdit = report("edit of one device, the longest of 20", longestMs, kMostEditMs);
    return fastStart && fastEdit ? 0 : 1;
}

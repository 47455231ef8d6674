#include "history/deskhistory.h"

DeskHistory::DeskHistory(Fleet& fleet, EventLog& log, Recorder::IsRecorded isRecorded,
                         QObject* parent)
    : QObject(parent)
    , m_fleet(fleet)
    , m_log(log)
    , m_isRecorded(std::move(isRecorded))
{}

DeskHistory::~DeskHistory() = default;

void DeskHistory::start(const HistorySettings& settings, SecretsChoice secrets, const QString& site)
{
    HistoryWriterOptions options;
    options.site = site;
    options.mayWrite = m_mayWrite;
    open(options, settings, secrets);
}

void DeskHistory::startReading(const HistorySettings& settings, SecretsChoice secrets)
{
    HistoryWriterOptions options;
    options.keepsHouse = false;
    open(options, settings, secrets);
}

void DeskHistory::open(HistoryWriterOptions options, const HistorySettings& settings,
                       SecretsChoice secrets)
{
    const ParsedStore store = storeOf(settings);
    if (!store.error.isEmpty()) {
        emit told(tr("Nothing is recorded: %1").arg(store.error), true);
        return;
    }
    options.keep = tierLengths(settings);
    m_secrets = SecretStore::make(secrets);
    withStoreSecret(store.address, *m_secrets, this,
                    [this, options](const StoreAddress& address, const QString& fault) mutable {
                        if (!fault.isEmpty())
                            emit told(fault, true);
                        options.store = address;
                        work(options);
                    });
}

void DeskHistory::work(const HistoryWriterOptions& options)
{
    m_writer = std::make_unique<HistoryWriter>(options);
    m_reader = std::make_unique<HistoryReader>(options.store);
    if (options.keepsHouse)
        m_recorder = std::make_unique<Recorder>(m_fleet, m_log, *m_writer, *m_reader, m_isRecorded);
    connect(m_writer.get(), &HistoryWriter::storeFault, this,
            [this](const QString& text) { emit told(text, true); });
    connect(m_writer.get(), &HistoryWriter::storeRecovered, this,
            [this](const QString& text) { emit told(text, false); });
    m_writer->start();
    if (m_recorder)
        m_recorder->start();
    emit started();
}

ParsedStore storeOf(const HistorySettings& settings)
{
    ParsedStore store = parseStoreAddress(settings.store);
    store.address.tls = settings.tls;
    store.address.certificateAuthority = settings.certificateAuthority;
    return store;
}

TierLengths tierLengths(const HistorySettings& settings)
{
    return {settings.keepSamples * kMsPerDay, settings.keepMinutes * kMsPerDay,
            settings.keepQuarters * kMsPerDay, settings.keepQuarters * kMsPerDay};
}

void withStoreSecret(const StoreAddress& address, SecretStore& secrets, QObject* context,
                     const std::function<void(const StoreAddress&, const QString& fault)>& ready)
{
    StoreAddress complete = address;
    complete.secret = qEnvironmentVariable(DeskHistory::kSecretVariable);
    if (address.kind == StoreAddress::Kind::Sqlite || !complete.secret.isEmpty()) {
        ready(complete, {});
        return;
    }
    const SecretStore::Errand errand{
        SecretStore::Action::Read, QLatin1String(DeskHistory::kSecretKey), {}};
    secrets.run({errand}, context, [complete, ready](const SecretStore::Results& results) mutable {
        const SecretResult result = results.value(0);
        complete.secret = result.secret.toString();
        const bool failed = result.status == SecretResult::Status::Failed;
        ready(complete, failed ? result.message : QString());
    });
}

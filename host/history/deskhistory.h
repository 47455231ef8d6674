#ifndef DESKHISTORY_H
#define DESKHISTORY_H

// The history of this desk, put together: where it is kept, who writes it, who may ask it.
// May touch: the history, the settings, the secret store.

#include "history/historyreader.h"
#include "history/recorder.h"
#include "secrets/secretstore.h"

class DeskHistory : public QObject
{
    Q_OBJECT

public:
    // The key of the password in the secret store, and the variable that comes before it.
    static constexpr char kSecretKey[] = "history";
    static constexpr char kSecretVariable[] = "UPSDESK_HISTORY_SECRET";

    // fleet and log must outlive it.
    DeskHistory(Fleet& fleet, EventLog& log, Recorder::IsRecorded isRecorded,
                QObject* parent = nullptr);
    ~DeskHistory() override;

    // Asked before the store is written, from the writer's thread; to be set before the start.
    void setPermit(const std::function<bool()>& mayWrite) { m_mayWrite = mayWrite; }
    // Fetches the password where there is one, then records. Once; returns at once.
    void start(const HistorySettings& settings, SecretsChoice secrets, const QString& site = {});
    // As start(), but records nothing: others do. Entries can be acknowledged.
    void startReading(const HistorySettings& settings, SecretsChoice secrets);

    // Null until the store is known, and where its address is wrong.
    HistoryWriter* writer() const { return m_writer.get(); }
    HistoryReader* reader() const { return m_reader.get(); }
    Recorder* recorder() const { return m_recorder.get(); } // null where nothing is recorded

signals:
    void started(); // writer, reader and recorder are there
    // For the operator, plain text; isBad: something is wrong, else it is well again.
    void told(const QString& text, bool isBad);

private:
    void open(HistoryWriterOptions options, const HistorySettings& settings, SecretsChoice secrets);
    void work(const HistoryWriterOptions& options);

    Fleet& m_fleet;
    EventLog& m_log;
    const Recorder::IsRecorded m_isRecorded;
    std::function<bool()> m_mayWrite;
    std::unique_ptr<SecretStore> m_secrets;
    // In this order: the recorder writes its last word before the writer ends.
    std::unique_ptr<HistoryWriter> m_writer;
    std::unique_ptr<HistoryReader> m_reader;
    std::unique_ptr<Recorder> m_recorder;
};

// What the settings say of the store. error: empty, or what is wrong with them.
ParsedStore storeOf(const HistorySettings& settings);
TierLengths tierLengths(const HistorySettings& settings);
// Calls back once with the password filled in, from the environment or the secret store; at once
// where none is needed. fault: why the secret store could not say.
void withStoreSecret(const StoreAddress& address, SecretStore& secrets, QObject* context,
                     const std::function<void(const StoreAddress&, const QString& fault)>& ready);

#endif // DESKHISTORY_H

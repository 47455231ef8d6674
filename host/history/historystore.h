#ifndef HISTORYSTORE_H
#define HISTORYSTORE_H

// One connection to the database of the history. All of it belongs to the thread that opens it,
// and may block: never used on the GUI thread.
// May touch: QtSql, the store's address, tiers, readings.

#include "history/storeaddress.h"
#include "history/tiers.h"

#include <QMutex>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <atomic>
#include <map>
#include <memory>

class HistoryStore
{
public:
    enum class Access { Read, Write };

    static std::unique_ptr<HistoryStore> make(const StoreAddress& address);
    virtual ~HistoryStore();
    HistoryStore(const HistoryStore&) = delete;
    HistoryStore& operator=(const HistoryStore&) = delete;

    // For writing the schema is made or brought up to date. False: see errorText().
    bool open(Access access);
    void close();
    // From any thread: ends what waits for a server that does not answer, with an error.
    void abort();
    // How often that was asked for.
    int aborts() const { return m_aborts; }
    bool isOpen() const { return m_database.isOpen(); }

    // A statement with ? for each value, prepared once and kept. Null after an error. The query
    // stays valid until the same text is run again.
    QSqlQuery* run(const QString& sql, const QVariantList& values = {});
    // INSERT INTO `into` (with its columns) VALUES many rows `tail`; values row by row.
    bool insertRows(const QString& into, const QString& tail, int columns,
                    const QVariantList& values);
    bool begin();
    bool commit();
    virtual void rollback();

    // Why the last action failed, in plain words with the cure; the next action clears it not.
    QString errorText() const { return m_error; }
    // Whether it was the connection that failed, so that an unfinished commit may have been done.
    bool isConnectionLost() const { return m_connectionLost; }

    // Makes room for rows of the tier at that time; within a transaction.
    virtual bool prepareTier(int tier, qint64 timeMs) = 0;
    // Forgets a bounded number of rows of the tier older than that. True as long as there was
    // something to do.
    virtual bool forgetSome(int tier, qint64 beforeMs) = 0;
    // Whether an INSERT may name many rows: worth it where each statement is a round trip.
    virtual int rowsPerInsert() const = 0;
    // "text LIKE ?" without regard to case.
    virtual QString likeOperator() const = 0;

    const StoreAddress& address() const { return m_address; }

protected:
    explicit HistoryStore(const StoreAddress& address);

    virtual bool connectTo(QSqlDatabase& database, Access access) = 0;
    virtual QString beginStatement(bool isMigration) const = 0;
    // A statement of the schema in the words of this database: {id}, {blob}, {big}, {partitioned}.
    virtual QString inDialect(QString statement) const = 0;
    virtual QString plainFault(const QString& code) const = 0;
    // For connectTo().
    bool fail(const QString& text);
    bool takeError(const QSqlError& error);
    static QSqlDatabase addDatabase(const QString& driver, const QString& name);
    bool execute(const QString& sql);
    void setSocket(int socket);

    StoreAddress m_address;
    QSqlDatabase m_database;

private:
    bool migrate(Access access);
    int schemaVersion();

    QString m_name;
    QString m_error;
    bool m_connectionLost = false;
    std::atomic<int> m_aborts{0};
    QMutex m_socketMutex;
    int m_socket = -1;
    std::map<QString, QSqlQuery> m_prepared;
};

#endif // HISTORYSTORE_H

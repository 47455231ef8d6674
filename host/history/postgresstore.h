#ifndef POSTGRESSTORE_H
#define POSTGRESSTORE_H

// The history in a PostgreSQL database that desks and collectors share. Its tiers are partitioned
// by time, so that the old is forgotten by dropping a partition.
// May touch: as the base class; the PostgreSQL client library.

#include "history/historystore.h"

#include <QHostAddress>
#include <QSet>

#include <optional>

struct pg_conn;

class PostgresStore : public HistoryStore
{
public:
    explicit PostgresStore(const StoreAddress& address)
        : HistoryStore(address)
    {}

    void rollback() override;
    bool prepareTier(int tier, qint64 timeMs) override;
    bool forgetSome(int tier, qint64 beforeMs) override;
    int rowsPerInsert() const override { return 50; }
    QString likeOperator() const override { return QStringLiteral("ILIKE"); }

    bool listen(const QString& channel);
    // Then: how many notifications have come, at the latest after that time. -1: the connection is
    // lost.
    int waitForNotice(int ms);

protected:
    bool connectTo(QSqlDatabase& database, Access access) override;
    QString beginStatement(bool isMigration) const override;
    QString inDialect(QString statement) const override;
    QString plainFault(const QString& code) const override;

private:
    pg_conn* connection() const;
    std::optional<QHostAddress> addressThatAnswers();
    QList<QHostAddress> addresses();
    // Empty: it did not answer in time.
    std::optional<bool> letsIn(const QHostAddress& address);

    QSet<QString> m_partitions; // known to be there
};

#endif // POSTGRESSTORE_H

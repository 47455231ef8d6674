#ifndef SQLITESTORE_H
#define SQLITESTORE_H

// The history in a file of its own.
// May touch: as the base class; private files.

#include "history/historystore.h"

class SqliteStore : public HistoryStore
{
public:
    explicit SqliteStore(const StoreAddress& address)
        : HistoryStore(address)
    {}

    bool prepareTier(int tier, qint64 timeMs) override;
    bool forgetSome(int tier, qint64 beforeMs) override;
    int rowsPerInsert() const override { return 1; }
    QString likeOperator() const override { return QStringLiteral("LIKE"); }

protected:
    bool connectTo(QSqlDatabase& database, Access access) override;
    QString beginStatement(bool isMigration) const override;
    QString inDialect(QString statement) const override;
    QString plainFault(const QString& code) const override;

private:
    qint64 m_forgetFrom = 0; // id of the device whose turn it is
};

#endif // SQLITESTORE_H

#include "collector/sitelock.h"

#include "collector/databasesitelock.h"
#include "collector/filesitelock.h"

SiteLock::~SiteLock() = default;

std::unique_ptr<SiteLock> SiteLock::make(const StoreAddress& store, const QString& site)
{
    if (store.kind == StoreAddress::Kind::Postgres)
        return std::make_unique<DatabaseSiteLock>(store, site);
    return std::make_unique<FileSiteLock>(store.path);
}

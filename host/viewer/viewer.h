#ifndef VIEWER_H
#define VIEWER_H

// A desk that polls nothing: its fleet is what the collectors of all sites tell through the shared
// store. Silence of a collector, or of the store, is an alarm of every device that it concerns.
// May touch: the fleet, the live feed, the samples' encodings, the secret store.

#include "fleet/fleet.h"
#include "secrets/secretstore.h"
#include "viewer/livefeed.h"

#include <deque>
#include <map>

class Viewer : public QObject
{
    Q_OBJECT

public:
    // After so long a collector counts as silent: another one of its site would have come by then.
    static constexpr int kSilenceMs = 15000;

    struct Word {
        QString site;
        qint64 ageMs = 0; // of the last sign of life of its collector
        bool isSilent = false;
    };

    // The fleet is the viewer's alone, makes RelayConnectors, and outlives it.
    explicit Viewer(Fleet& fleet, QObject* parent = nullptr);
    ~Viewer() override;

    // Return at once.
    void start(const HistorySettings& settings, SecretsChoice secrets);
    void start(const StoreAddress& store);

    // Why the store was not read the last time; plain text, empty: it was.
    QString fault() const { return m_fault; }
    QVector<Word> words() const;

signals:
    // Words and fault are others, or only older; about once a second.
    void heard();

private:
    struct Known {
        Device* device = nullptr;
        QString settings; // as they were told
        QByteArray info;
        qint64 askedBootMs = 0; // of the reading that is shown
    };
    struct Site {
        qint64 heardBootMs = 0;
        QString silence; // why nothing is known of its devices; empty: it is heard
    };

    void take(const LiveNews& news);
    void hear(const LiveSite& told);
    void applySome();
    void apply(const LiveDevice& live);
    bool settle(const LiveDevice& live, Known& known);
    void checkStore();
    void silence(const QString& name, Site& site, LinkState link, const QString& message);

    Fleet& m_fleet;
    std::unique_ptr<SecretStore> m_secrets;
    std::unique_ptr<LiveFeed> m_feed;
    QHash<QString, Known> m_known; // by nameAtSite()
    std::map<QString, Site> m_sites;
    std::deque<LiveDevice> m_waiting; // to be applied, in slices
    QTimer m_slice;
    QString m_fault;
    qint64 m_newsMs = 0; // monotonic ms of the last good answer of the store
    bool m_isStoreSilent = false;
};

#endif // VIEWER_H

#ifndef LIVETABLE_H
#define LIVETABLE_H

// What is so of the devices now, in the shared store: written by the collector of each site, read
// by viewers. All times in it are those of the database's clock, so that the clocks of the machines
// do not matter.
// May touch: the store, device settings, link states.

#include "connectors/devicesettings.h"
#include "connectors/linkstate.h"
#include "history/historystore.h"

#include <QVector>

struct LiveDevice {
    QString site;
    QString name;
    int place = 0; // in the collector's list
    bool isGone = false;
    // What changes rarely; both null: as they were.
    QString settings; // encodeLiveSettings()
    QByteArray info;  // encodeInfo()

    LinkState link = LinkState::Connecting;
    QString message;
    QByteArray reading;     // the last good one, encodeSample(); null: none, or as it was
    qint64 askedBootMs = 0; // when its poll began, on this machine's boot clock
    int condition = 0;      // ConditionKind
    qint64 sinceBootMs = 0; // its onset
};

struct LiveSite {
    QString site;
    qint64 number = 0;      // of its last change; rises
    qint64 heardBootMs = 0; // last sign of life of its collector, on this machine's boot clock
};

class LiveTable
{
public:
    static constexpr char kChannel[] = "upsdesk_live"; // of notifications, with the site

    // The store is a PostgreSQL database, and open.
    explicit LiveTable(HistoryStore& store)
        : m_store(store)
    {}

    // In one transaction, with a notification where there are devices; without, a sign of life.
    // isAll: what else the site had is gone. False: see the store's errorText().
    bool write(const QString& site, const QVector<LiveDevice>& devices, bool isAll);

    QVector<LiveSite> sites();
    // Devices that changed after the given numbers of their sites, in the order of the sites and
    // their lists. Null settings and info: they did not change.
    QVector<LiveDevice> changedSince(const QVector<LiveSite>& known);
    bool failed() const { return m_failed; }

private:
    bool writeDevices(const QVector<LiveDevice>& devices, qint64 number, qint64 nowMinusBoot);

    HistoryStore& m_store;
    bool m_failed = false;
};

// What a viewer needs to know of the device; no secret, no account, the address as it may be shown.
QString encodeLiveSettings(const DeviceSettings& settings);
// False: the text makes no device.
bool decodeLiveSettings(const QString& text, DeviceSettings& settings);

#endif // LIVETABLE_H

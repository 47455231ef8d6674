#ifndef SAMPLE_H
#define SAMPLE_H

// What one poll brought, and what many brought together, as the history keeps them.
// May touch: readings, link states, quantities.

#include "connectors/linkstate.h"
#include "history/quantities.h"

#include <QByteArray>

#include <limits>

// Who a sample or an entry is about. The name is what the operator gave the device, else its
// address; the address is as it may be shown, without a community.
struct StoredDevice {
    qint64 id = 0; // of the store; 0: not known there
    QString site;
    QString name;
    QString address;
};

// One poll. All times of the history are UTC in ms since 1970.
struct Sample {
    qint64 timeMs = 0;
    LinkState link = LinkState::Connecting;
    UpsReading reading; // empty where link is not live
};

// What lies between means: how a value moved.
struct ValueRange {
    double mean = std::numeric_limits<double>::quiet_NaN(); // no value: all three
    double least = std::numeric_limits<double>::quiet_NaN();
    double most = std::numeric_limits<double>::quiet_NaN();

    bool isKnown() const { return mean == mean; }
};

// What a span of time was at its worst: a failure of seconds must not vanish in a mean.
struct SpanState {
    LinkState link = LinkState::Live;
    OutputSource source = OutputSource::Other;
    BatteryState battery = BatteryState::Unknown;
    quint32 alarms = 0; // bit n: the alarm of that number was raised

    void include(const SpanState& other);
};

SpanState stateOf(const Sample& sample);
quint32 alarmBits(const QSet<Alarm>& alarms);
QSet<Alarm> alarmsOfBits(quint32 bits);

// Samples of one span together.
struct Bucket {
    struct Part {
        quint32 count = 0; // samples that had the value
        ValueRange range;
    };

    quint32 count = 0;
    SpanState state;
    std::vector<Part> parts; // by index of the quantity; empty before the first add

    void add(const Sample& sample);
    void add(const Bucket& finer);
    // Unites with what was stored of the same span before; the means of the one that saw more.
    void unite(const Bucket& stored);
};

// Encodings. Numbers are kept to a thousandth, as variable-length integers behind a mask of those
// that are there; what a newer version appended is passed over.
//
// A reading without what changes rarely, and what changes rarely (identity, ratings).
QByteArray encodeSample(const Sample& sample);
bool decodeSample(const QByteArray& bytes, Sample& sample); // leaves timeMs alone
QByteArray encodeInfo(const UpsReading& reading);
bool decodeInfo(const QByteArray& bytes, UpsReading& reading);
QByteArray encodeBucket(const Bucket& bucket);
bool decodeBucket(const QByteArray& bytes, Bucket& bucket);

#endif // SAMPLE_H

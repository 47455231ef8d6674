#include "history/sample.h"

#include "history/bytecode.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr quint64 kVersion = 1;
constexpr double kSteps = 1000;      // a number is kept to a thousandth
constexpr double kMostNumber = 1e12; // beyond it no UPS has anything to say
constexpr quint64 kMostTexts = 1000; // of one reading
constexpr int kMostAlarms = 32;      // bits of a mask

// Mildest first: what a span counts as when it saw several.
constexpr OutputSource kSources[] = {
    OutputSource::Other,  OutputSource::Utility, OutputSource::Booster, OutputSource::Reducer,
    OutputSource::Bypass, OutputSource::Battery, OutputSource::None};
constexpr LinkState kLinks[] = {LinkState::Connecting, LinkState::Live, LinkState::Stale,
                                LinkState::Refused, LinkState::Lost};
constexpr BatteryState kBatteries[] = {BatteryState::Unknown,     BatteryState::Normal,
                                       BatteryState::FloatCharge, BatteryState::BoostCharge,
                                       BatteryState::SelfTest,    BatteryState::Discharge,
                                       BatteryState::Low,         BatteryState::Depleted};

template <typename T, size_t N>
T worse(const T (&mildestFirst)[N], T a, T b)
{
    const auto rank = [&](T value) {
        return std::find(std::begin(mildestFirst), std::end(mildestFirst), value);
    };
    return rank(a) < rank(b) ? b : a;
}

// What changes once in a year, kept beside the samples.
constexpr Value UpsReading::*kRatings[] = {
    &UpsReading::ratedInputVoltage,   &UpsReading::ratedInputFrequency,
    &UpsReading::ratedOutputVoltage,  &UpsReading::ratedOutputFrequency,
    &UpsReading::ratedApparentPower,  &UpsReading::ratedPower,
    &UpsReading::lowBatteryTime,      &UpsReading::lowTransferVoltage,
    &UpsReading::highTransferVoltage,
};
constexpr QString UpsReading::*kIdentity[] = {
    &UpsReading::model,           &UpsReading::manufacturer,    &UpsReading::name,
    &UpsReading::attachedDevices, &UpsReading::softwareVersion, &UpsReading::agentVersion,
    &UpsReading::location,
};
constexpr LineReading UpsReading::*kGroups[] = {&UpsReading::input, &UpsReading::output,
                                                &UpsReading::bypass};

bool isStorable(Value value)
{
    return value && std::abs(*value) < kMostNumber;
}

qint64 steps(double value)
{
    return std::llround(value * kSteps);
}

void writeOptional(ByteWriter& out, std::optional<int> value)
{
    out.number(value ? 1 : 0);
    if (value)
        out.signedNumber(*value);
}

std::optional<int> readOptional(ByteReader& in)
{
    return in.number() ? std::optional<int>(static_cast<int>(in.signedNumber())) : std::nullopt;
}

void writeTexts(ByteWriter& out, const QStringList& texts)
{
    out.number(static_cast<quint64>(texts.size()));
    for (const QString& text : texts)
        out.text(text);
}

QStringList readTexts(ByteReader& in)
{
    QStringList texts;
    for (quint64 left = std::min(in.number(), kMostTexts); left > 0 && !in.failed(); --left)
        texts += in.text();
    return texts;
}

template <typename Get>
void writeValues(ByteWriter& out, std::size_t count, const Get& get)
{
    quint64 mask = 0;
    for (std::size_t i = 0; i < count; ++i)
        if (isStorable(get(i)))
            mask |= quint64{1} << i;
    out.number(mask);
    for (std::size_t i = 0; i < count; ++i)
        if (mask >> i & 1)
            out.signedNumber(steps(*get(i)));
}

template <typename Set>
void readValues(ByteReader& in, std::size_t count, const Set& set)
{
    quint64 mask = in.number();
    for (std::size_t i = 0; mask && !in.failed(); ++i, mask >>= 1) {
        if (!(mask & 1))
            continue;
        const double value = static_cast<double>(in.signedNumber()) / kSteps;
        if (i < count)
            set(i, value);
    }
}

void writeState(ByteWriter& out, const SpanState& state)
{
    out.number(static_cast<quint64>(state.link));
    out.number(static_cast<quint64>(state.source));
    out.number(static_cast<quint64>(state.battery));
    out.number(state.alarms);
}

// A number that no version of ours wrote is read as the first of the list.
template <typename T, size_t N>
T readOneOf(ByteReader& in, const T (&known)[N])
{
    const quint64 number = in.number();
    for (T value : known)
        if (static_cast<quint64>(value) == number)
            return value;
    return known[0];
}

SpanState readState(ByteReader& in)
{
    SpanState state;
    state.link = readOneOf(in, kLinks);
    state.source = readOneOf(in, kSources);
    state.battery = readOneOf(in, kBatteries);
    state.alarms = static_cast<quint32>(in.number());
    return state;
}

void include(Bucket::Part& part, quint32 count, const ValueRange& range)
{
    if (count == 0)
        return;
    if (part.count == 0) {
        part = {count, range};
        return;
    }
    const double all = double(part.count) + count;
    part.range.mean = (part.range.mean * part.count + range.mean * count) / all;
    part.range.least = std::min(part.range.least, range.least);
    part.range.most = std::max(part.range.most, range.most);
    part.count += count;
}

} // namespace

void SpanState::include(const SpanState& other)
{
    link = worse(kLinks, link, other.link);
    source = worse(kSources, source, other.source);
    battery = worse(kBatteries, battery, other.battery);
    alarms |= other.alarms;
}

SpanState stateOf(const Sample& sample)
{
    return {sample.link, sample.reading.outputSource, sample.reading.batteryState,
            alarmBits(sample.reading.alarms)};
}

quint32 alarmBits(const QSet<Alarm>& alarms)
{
    quint32 bits = 0;
    for (Alarm alarm : alarms)
        bits |= quint32{1} << static_cast<int>(alarm);
    return bits;
}

QSet<Alarm> alarmsOfBits(quint32 bits)
{
    QSet<Alarm> alarms;
    for (int i = 1; i < kMostAlarms; ++i)
        if (bits >> i & 1)
            alarms += static_cast<Alarm>(i);
    return alarms;
}

// Buckets

void Bucket::add(const Sample& sample)
{
    Bucket one;
    one.count = 1;
    one.state = stateOf(sample);
    const auto& all = quantities();
    one.parts.resize(all.size());
    for (std::size_t i = 0; i < all.size(); ++i)
        if (const Value value = quantityOf(sample.reading, all[i]))
            one.parts[i] = {1, {*value, *value, *value}};
    add(one);
}

void Bucket::add(const Bucket& finer)
{
    if (count == 0)
        state = finer.state;
    else
        state.include(finer.state);
    count += finer.count;
    parts.resize(std::max(parts.size(), finer.parts.size()));
    for (std::size_t i = 0; i < finer.parts.size(); ++i)
        include(parts[i], finer.parts[i].count, finer.parts[i].range);
}

void Bucket::unite(const Bucket& stored)
{
    count = std::max(count, stored.count);
    state.include(stored.state);
    parts.resize(std::max(parts.size(), stored.parts.size()));
    for (std::size_t i = 0; i < stored.parts.size(); ++i) {
        const Part mine = parts[i];
        include(parts[i], stored.parts[i].count, stored.parts[i].range);
        const Part& fuller = mine.count >= stored.parts[i].count ? mine : stored.parts[i];
        parts[i].count = fuller.count;
        parts[i].range.mean = fuller.range.mean;
    }
}

// Encodings

QByteArray encodeSample(const Sample& sample)
{
    const UpsReading& reading = sample.reading;
    const auto& all = quantities();
    ByteWriter out;
    out.number(kVersion);
    writeState(out, stateOf(sample));
    writeValues(out, all.size(), [&](std::size_t i) { return quantityOf(reading, all[i]); });
    if (sample.link != LinkState::Live)
        return out.bytes();
    for (const auto group : kGroups)
        writeOptional(out, (reading.*group).lines);
    writeOptional(out, reading.beeper ? std::optional<int>(static_cast<int>(*reading.beeper))
                                      : std::nullopt);
    writeOptional(out, reading.alarmCount);
    writeTexts(out, reading.alarmTexts);
    out.number(reading.saysMains ? 1 : 0);
    out.number(static_cast<quint64>(reading.alarmAges.size()));
    for (auto it = reading.alarmAges.cbegin(); it != reading.alarmAges.cend(); ++it) {
        out.number(static_cast<quint64>(it.key()));
        out.signedNumber(steps(std::min(it.value(), kMostNumber)));
    }
    return out.bytes();
}

bool decodeSample(const QByteArray& bytes, Sample& sample)
{
    ByteReader in(bytes);
    const quint64 version = in.number();
    const SpanState state = readState(in);
    UpsReading& reading = sample.reading;
    sample.link = state.link;
    reading.outputSource = state.source;
    reading.batteryState = state.battery;
    reading.alarms = alarmsOfBits(state.alarms);
    const auto& all = quantities();
    readValues(in, all.size(), [&](std::size_t i, double v) { setQuantity(reading, all[i], v); });
    if (sample.link == LinkState::Live) {
        for (const auto group : kGroups)
            (reading.*group).lines = readOptional(in);
        if (const auto beeper = readOptional(in))
            reading.beeper = static_cast<Beeper>(*beeper);
        reading.alarmCount = readOptional(in);
        reading.alarmTexts = readTexts(in);
        reading.saysMains = in.number() != 0;
        for (quint64 left = in.number(); left > 0 && !in.failed(); --left) {
            const auto alarm = static_cast<Alarm>(in.number());
            reading.alarmAges.insert(alarm, static_cast<double>(in.signedNumber()) / kSteps);
        }
    }
    return version == kVersion && !in.failed();
}

QByteArray encodeInfo(const UpsReading& reading)
{
    ByteWriter out;
    out.number(kVersion);
    writeValues(out, std::size(kRatings), [&](std::size_t i) { return reading.*kRatings[i]; });
    for (const auto text : kIdentity)
        out.text(reading.*text);
    writeTexts(out, reading.notes);
    return out.bytes();
}

bool decodeInfo(const QByteArray& bytes, UpsReading& reading)
{
    ByteReader in(bytes);
    const quint64 version = in.number();
    readValues(in, std::size(kRatings), [&](std::size_t i, double v) { reading.*kRatings[i] = v; });
    for (const auto text : kIdentity)
        reading.*text = in.text();
    reading.notes = readTexts(in);
    return version == kVersion && !in.failed();
}

QByteArray encodeBucket(const Bucket& bucket)
{
    ByteWriter out;
    out.number(kVersion);
    writeState(out, bucket.state);
    out.number(bucket.count);
    const auto isThere = [&](std::size_t i) {
        const ValueRange& range = bucket.parts[i].range;
        return bucket.parts[i].count > 0 && isStorable(range.least) && isStorable(range.most);
    };
    quint64 mask = 0;
    for (std::size_t i = 0; i < bucket.parts.size(); ++i)
        if (isThere(i))
            mask |= quint64{1} << i;
    out.number(mask);
    for (std::size_t i = 0; i < bucket.parts.size(); ++i) {
        if (!(mask >> i & 1))
            continue;
        const Bucket::Part& part = bucket.parts[i];
        out.number(bucket.count - part.count);
        out.signedNumber(steps(part.range.least));
        out.signedNumber(steps(part.range.mean) - steps(part.range.least));
        out.signedNumber(steps(part.range.most) - steps(part.range.least));
    }
    return out.bytes();
}

bool decodeBucket(const QByteArray& bytes, Bucket& bucket)
{
    ByteReader in(bytes);
    const quint64 version = in.number();
    bucket = {};
    bucket.state = readState(in);
    bucket.count = static_cast<quint32>(in.number());
    bucket.parts.resize(quantities().size());
    quint64 mask = in.number();
    for (std::size_t i = 0; mask && !in.failed(); ++i, mask >>= 1) {
        if (!(mask & 1))
            continue;
        const quint64 missing = in.number();
        const qint64 least = in.signedNumber();
        const qint64 mean = least + in.signedNumber();
        const qint64 most = least + in.signedNumber();
        if (i < bucket.parts.size())
            bucket.parts[i] = {static_cast<quint32>(bucket.count - missing),
                               {static_cast<double>(mean) / kSteps,
                                static_cast<double>(least) / kSteps,
                                static_cast<double>(most) / kSteps}};
    }
    return version == kVersion && !in.failed();
}

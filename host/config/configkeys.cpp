#include "config/configkeys.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <type_traits>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(ConfigKeys)
};

constexpr int kMaxSeconds = 86400;
constexpr int kMaxInterval = 3600; // s
constexpr int kMaxGroup = 100;
constexpr int kMaxUser = 255;
constexpr int kMaxPath = 4096;
constexpr int kMaxTime = 5; // HH:MM
constexpr char kTimeOfDay[] = "(([01][0-9]|2[0-3]):[0-5][0-9])?";
constexpr char kWebAddress[] =
    "(https://[^/ ]+(/.*)?|http://(127\\.0\\.0\\.1|localhost|\\[::1\\])(:[0-9]+)?(/.*)?)?";
constexpr int kMaxFingerprint = 110; // with colons

// The value that a path of members leads to, as a QVariant: at<&DeskSettings::thresholds,
// &Thresholds::loadHigh>.
template <typename T, auto... path>
struct Field {
    using Value = std::decay_t<decltype((std::declval<T&>().*....*path))>;

    static QVariant get(const T& object)
    {
        const Value& value = (object.*....*path);
        if constexpr (std::is_enum_v<Value> || std::is_same_v<Value, quint32>)
            return static_cast<int>(value);
        else
            return value;
    }
    static void set(T& object, const QVariant& value)
    {
        Value& target = (object.*....*path);
        if constexpr (std::is_enum_v<Value> || std::is_same_v<Value, quint32>)
            target = static_cast<Value>(value.toInt());
        else
            target = value.value<Value>();
    }
};

template <typename T, auto... path>
ConfigKey<T> key(const char* section, const char* name, const char* label, const ConfigType& type)
{
    return {section, name, label, type, &Field<T, path...>::get, &Field<T, path...>::set};
}

template <auto... path>
ConfigKey<DeskSettings> desk(const char* section, const char* name, const char* label,
                             const ConfigType& type)
{
    return key<DeskSettings, path...>(section, name, label, type);
}

template <auto... path>
ConfigKey<DeviceSettings> device(const char* name, const char* label, const ConfigType& type)
{
    return key<DeviceSettings, path...>("", name, label, type);
}

using DeskKeys = std::vector<ConfigKey<DeskSettings>>;
using D = DeskSettings;
using C = ConfigType;

DeskKeys generalKeys()
{
    return {
        desk<&D::pollInterval>("poll", "interval", QT_TRANSLATE_NOOP("ConfigKeys", "&Poll every"),
                               C::number(1, kMaxInterval, "s")),
        desk<&D::thresholds, &Thresholds::chargeLow>(
            "thresholds", "charge-low", QT_TRANSLATE_NOOP("ConfigKeys", "Battery &low below"),
            C::number(1, 100, "%")),
        desk<&D::thresholds, &Thresholds::chargeCritical>(
            "thresholds", "charge-critical",
            QT_TRANSLATE_NOOP("ConfigKeys", "Battery &critical below"), C::number(0, 100, "%")),
        desk<&D::thresholds, &Thresholds::runtimeLow>(
            "thresholds", "runtime-low", QT_TRANSLATE_NOOP("ConfigKeys", "Little time left &below"),
            C::number(0, 1440, "min")),
        desk<&D::thresholds, &Thresholds::loadHigh>(
            "thresholds", "load-high", QT_TRANSLATE_NOOP("ConfigKeys", "&High load above"),
            C::number(1, 200, "%")),
        desk<&D::thresholds, &Thresholds::temperatureHigh>(
            "thresholds", "temperature-high",
            QT_TRANSLATE_NOOP("ConfigKeys", "Battery too &warm above"), C::number(1, 150, "°C")),
        desk<&D::idleLogout>("session", "idle-logout",
                             QT_TRANSLATE_NOOP("ConfigKeys", "Log operators out &after"),
                             C::number(1, 1440, "min")),
        desk<&D::theme>("window", "theme", QT_TRANSLATE_NOOP("ConfigKeys", "Them&e"),
                        C::choice({{"light", QT_TRANSLATE_NOOP("ConfigKeys", "Light")},
                                   {"dark", QT_TRANSLATE_NOOP("ConfigKeys", "Dark")},
                                   {"system", QT_TRANSLATE_NOOP("ConfigKeys", "As the desktop")}})),
        desk<&D::language>( // each by its own name, which those who look for it can read
            "window", "language", QT_TRANSLATE_NOOP("ConfigKeys", "Lan&guage"),
            C::choice({{"system", QT_TRANSLATE_NOOP("ConfigKeys", "As the desktop")},
                       {"en", "English"},
                       {"de", "Deutsch"},
                       {"fr", "Fran\u00e7ais"},
                       {"es", "Espa\u00f1ol"},
                       {"zh_CN", "\u7b80\u4f53\u4e2d\u6587"}})),
        desk<&D::motion>("window", "motion", QT_TRANSLATE_NOOP("ConfigKeys", "&Motion"),
                         C::choice({{"system", QT_TRANSLATE_NOOP("ConfigKeys", "As the desktop")},
                                    {"full", QT_TRANSLATE_NOOP("ConfigKeys", "Flows move")},
                                    {"reduced", QT_TRANSLATE_NOOP("ConfigKeys", "Flows stand")}})),
        desk<&D::secrets>(
            "secrets", "store", QT_TRANSLATE_NOOP("ConfigKeys", "&Keep secrets in"),
            C::choice(
                {{"keychain", QT_TRANSLATE_NOOP("ConfigKeys", "the desktop's keychain")},
                 {"file", QT_TRANSLATE_NOOP("ConfigKeys", "a file that only you can read")}})),
    };
}

DeskKeys historyKeys()
{
    using H = HistorySettings;
    return {
        desk<&D::history, &H::store>(
            "history", "store", QT_TRANSLATE_NOOP("ConfigKeys", "&Kept in"), C::text(kMaxPath)),
        desk<&D::history, &H::mode>(
            "history", "mode", QT_TRANSLATE_NOOP("ConfigKeys", "This &desk"),
            C::choice({{"desk", QT_TRANSLATE_NOOP("ConfigKeys", "records")},
                       {"viewer", QT_TRANSLATE_NOOP("ConfigKeys", "does not record")}})),
        desk<&D::history, &H::tls>(
            "history", "tls", QT_TRANSLATE_NOOP("ConfigKeys", "&Encryption"),
            C::choice({{"required", QT_TRANSLATE_NOOP("ConfigKeys", "always")},
                       {"preferred", QT_TRANSLATE_NOOP("ConfigKeys", "always with a password")},
                       {"off", QT_TRANSLATE_NOOP("ConfigKeys", "never")}})),
        desk<&D::history, &H::certificateAuthority>("history", "ca-file",
                                                    QT_TRANSLATE_NOOP("ConfigKeys", "&Authorities"),
                                                    C::text(kMaxPath)),
        desk<&D::history, &H::keepSamples>("history", "keep-samples",
                                           QT_TRANSLATE_NOOP("ConfigKeys", "Keep every &poll for"),
                                           C::number(1, 366, "days")),
        desk<&D::history, &H::keepMinutes>("history", "keep-minutes",
                                           QT_TRANSLATE_NOOP("ConfigKeys", "&minutes for"),
                                           C::number(1, 3660, "days")),
        desk<&D::history, &H::keepQuarters>(
            "history", "keep-quarters",
            QT_TRANSLATE_NOOP("ConfigKeys", "&quarters of an hour and the journal for"),
            C::number(1, 36600, "days")),
    };
}

DeskKeys outsideKeys()
{
    using N = NotifySettings;
    static const C level =
        C::choice({{"never", QT_TRANSLATE_NOOP("ConfigKeys", "never")},
                   {"warning", QT_TRANSLATE_NOOP("ConfigKeys", "from warnings on")},
                   {"alarm", QT_TRANSLATE_NOOP("ConfigKeys", "from alarms on")},
                   {"critical", QT_TRANSLATE_NOOP("ConfigKeys", "when critical")}});
    static const C timeOfDay =
        C::matching(kTimeOfDay, kMaxTime, QT_TRANSLATE_NOOP("ConfigKeys", "a time like 22:00"));
    return {
        desk<&D::notify, &N::desktopFrom>(
            "notify", "desktop", QT_TRANSLATE_NOOP("ConfigKeys", "&Desktop notifications"), level),
        desk<&D::notify, &N::soundFrom>("notify", "sound",
                                        QT_TRANSLATE_NOOP("ConfigKeys", "with so&und"), level),
        desk<&D::notify, &N::quietFrom>("notify", "quiet-from",
                                        QT_TRANSLATE_NOOP("ConfigKeys", "&Quiet from"), timeOfDay),
        desk<&D::notify, &N::quietTo>("notify", "quiet-to", QT_TRANSLATE_NOOP("ConfigKeys", "to"),
                                      timeOfDay),
        desk<&D::notify, &N::command>(
            "notify", "command", QT_TRANSLATE_NOOP("ConfigKeys", "&Command"), C::text(kMaxPath)),
        desk<&D::notify, &N::commandFrom>("notify", "command-level",
                                          QT_TRANSLATE_NOOP("ConfigKeys", "&run it"), level),
        desk<&D::notify, &N::webhook>(
            "notify", "webhook", QT_TRANSLATE_NOOP("ConfigKeys", "&Webhook"),
            C::matching(kWebAddress, kMaxPath,
                        QT_TRANSLATE_NOOP("ConfigKeys", "an address that begins with https://"))
                .hidden()),
        desk<&D::notify, &N::webhookFrom>("notify", "webhook-level",
                                          QT_TRANSLATE_NOOP("ConfigKeys", "t&ell it"), level),
        desk<&D::site>("collector", "site", "", C::text(kMaxGroup)),
        desk<&D::metrics>("collector", "metrics",
                          QT_TRANSLATE_NOOP("ConfigKeys", "Serve &metrics at"), C::text(kMaxPath)),
    };
}

} // namespace

const std::vector<ConfigKey<DeskSettings>>& deskKeys()
{
    static const DeskKeys keys = [] {
        DeskKeys all = generalKeys();
        for (const DeskKeys& more : {historyKeys(), outsideKeys()})
            all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return keys;
}

const std::vector<ConfigKey<DeviceSettings>>& deviceKeys()
{
    using D = DeviceSettings;
    static const std::vector<ConfigKey<D>> keys{
        device<&D::group>("group", "", C::text(kMaxGroup)),
        device<&D::user>("user", "", C::text(kMaxUser)),
        device<&D::tls>("tls", "", C::choice({{"required", ""}, {"preferred", ""}, {"off", ""}})),
        device<&D::caFile>("ca-file", "", C::text(kMaxPath)),
        device<&D::fingerprint>(
            "fingerprint", "",
            C::matching("(sha256:([0-9a-fA-F]{2}:?){32})?", kMaxFingerprint,
                        QT_TRANSLATE_NOOP("ConfigKeys",
                                          "sha256: and the 64 hexadecimal digits of a "
                                          "certificate's fingerprint"))),
        device<&D::pollInterval>("interval", "", C::number(1, kMaxInterval, "s")),
        device<&D::timeout>("timeout", "", C::number(1, 120, "s")),
        device<&D::retries>("retries", "", C::number(0, 10)),
        device<&D::shutdownDelay>("shutdown-delay", "", C::number(0, kMaxSeconds, "s")),
        device<&D::restartDuration>("restart-duration", "", C::number(0, kMaxSeconds, "s")),
        device<&D::shutdownWholeUps>("shutdown-whole-ups", "", C::yesNo()),
        device<&D::seed>("seed", "", C::number(0, 2147483647)),
    };
    return keys;
}

const std::vector<ConfigKey<OperatorAccount>>& operatorKeys()
{
    using O = OperatorAccount;
    static const std::vector<ConfigKey<O>> keys{
        key<O, &O::level>("", "level", "", ConfigType::number(O::kMinLevel, O::kMaxLevel))};
    return keys;
}

const ConfigType& deviceKeyType(const QString& name)
{
    const auto& keys = deviceKeys();
    return std::find_if(keys.begin(), keys.end(),
                        [&name](const auto& key) { return name == QLatin1String(key.name); })
        ->type;
}

QString configLabel(const char* label)
{
    return Tr::tr(label);
}

bool hasControlCharacters(const QString& text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c.category() == QChar::Other_Control; });
}

// Types

ConfigType ConfigType::number(int minimum, int maximum, const char* unit)
{
    return {Kind::Number, minimum, maximum, unit, {}, "", "", false};
}

ConfigType ConfigType::yesNo()
{
    return {Kind::Switch, 0, 0, "", {}, "", "", false};
}

ConfigType ConfigType::choice(const std::vector<ConfigWord>& words)
{
    return {Kind::Choice, 0, 0, "", words, "", "", false};
}

ConfigType ConfigType::text(int longest)
{
    return {Kind::Text, 0, longest, "", {}, "", "", false};
}

ConfigType ConfigType::matching(const char* pattern, int longest, const char* meaning)
{
    ConfigType type = text(longest);
    type.pattern = pattern;
    type.meaning = meaning;
    return type;
}

ConfigType ConfigType::hidden() const
{
    ConfigType type = *this;
    type.isPrivate = true;
    return type;
}

std::optional<QVariant> ConfigType::parse(const QString& text) const
{
    switch (kind) {
    case Kind::Number: {
        bool ok = false;
        const int number = text.toInt(&ok);
        return ok && number >= minimum && number <= maximum ? std::optional<QVariant>(number)
                                                            : std::nullopt;
    }
    case Kind::Switch: {
        const int index = QStringList{"no", "yes", "false", "true", "off", "on", "0", "1"}.indexOf(
            text.toLower());
        return index < 0 ? std::nullopt : std::optional<QVariant>(index % 2 == 1);
    }
    case Kind::Choice:
        for (std::size_t i = 0; i < words.size(); ++i)
            if (text == QLatin1String(words[i].word))
                return static_cast<int>(i);
        return std::nullopt;
    case Kind::Text:
        break;
    }
    const bool fits =
        *pattern == '\0' ||
        QRegularExpression(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)))
            .match(text)
            .hasMatch();
    return fits && text.size() <= maximum && !hasControlCharacters(text)
               ? std::optional<QVariant>(text)
               : std::nullopt;
}

QString ConfigType::format(const QVariant& value) const
{
    if (kind == Kind::Switch)
        return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
    if (kind == Kind::Choice)
        return QLatin1String(words[static_cast<std::size_t>(value.toInt())].word);
    return value.toString();
}

QString ConfigType::description() const
{
    switch (kind) {
    case Kind::Number:
        return Tr::tr("a whole number from %1 to %2 %3")
            .arg(minimum)
            .arg(maximum)
            .arg(QString::fromUtf8(unit))
            .trimmed();
    case Kind::Switch:
        return Tr::tr("yes or no");
    case Kind::Choice: {
        QStringList names;
        for (const ConfigWord& word : words)
            names += QLatin1String(word.word);
        const QString last = names.takeLast();
        return Tr::tr("%1 or %2").arg(names.join(QStringLiteral(", ")), last);
    }
    case Kind::Text:
        break;
    }
    if (*meaning != '\0')
        return Tr::tr(meaning);
    return Tr::tr("a text of at most %1 characters").arg(maximum);
}

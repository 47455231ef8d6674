#include "connectors/nut/nutprotocol.h"

#include "reading/sanitize.h"

#include <QCoreApplication>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(NutProtocol)
};

struct RefusalRow {
    const char* word;
    LinkState state;
    const char* text;
};

constexpr RefusalRow kRefusals[] = {
    {"DATA-STALE", LinkState::Stale,
     QT_TRANSLATE_NOOP("NutProtocol",
                       "The server answers, but its driver has brought no new data for a while; "
                       "check the cable between server and UPS.")},
    {"DRIVER-NOT-CONNECTED", LinkState::Stale,
     QT_TRANSLATE_NOOP("NutProtocol", "The server answers, but the driver of this UPS is not "
                                      "running; start it on the server.")},
    {"ACCESS-DENIED", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol",
                       "The server denies access: wrong password or too few rights. Check user and "
                       "password in the configuration, and the user's actions and instcmds in "
                       "upsd.users on the server.")},
    {"UNKNOWN-UPS", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The server knows no UPS of this name; compare the address "
                                      "with the server's list of devices.")},
    {"USERNAME-REQUIRED", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The server wants a user and a password; add them in the "
                                      "configuration.")},
    {"PASSWORD-REQUIRED", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The server wants a password; add it in the configuration.")},
    {"INVALID-USERNAME", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol",
                       "The server does not accept the user; correct it in the configuration.")},
    {"INVALID-PASSWORD", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The server does not accept the password; correct it in the "
                                      "configuration.")},
    {"CMD-NOT-SUPPORTED", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The UPS does not support this command.")},
    {"VAR-NOT-SUPPORTED", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The UPS does not have this setting.")},
    {"READONLY", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The UPS does not let this setting be changed.")},
    {"TOO-LONG", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The value is too long for this setting.")},
    {"INVALID-VALUE", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The UPS does not accept this value.")},
    {"INVALID-ARGUMENT", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The server or its driver does not accept the request.")},
    {"INSTCMD-FAILED", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The server could not hand the command to its driver.")},
    {"SET-FAILED", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The server could not hand the setting to its driver.")},
    // Results that a driver reports of an order that the server had accepted.
    {"FAILED", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol", "The UPS or its driver reports that it failed.")},
    {"UNKNOWN", LinkState::Refused,
     QT_TRANSLATE_NOOP("NutProtocol",
                       "The driver of this UPS does not know this command or setting.")},
};

} // namespace

std::optional<NutWords> splitNutLine(const QByteArray& line)
{
    NutWords words;
    QByteArray word;
    bool quoted = false;
    bool inWord = false;
    bool escaped = false;
    for (const char c : line) {
        const bool blank = c == ' ' || c == '\t' || c == '\r';
        if (escaped) {
            word += c;
            escaped = false;
        } else if (c == '\\') {
            escaped = inWord = true;
        } else if (c == '"') {
            quoted = !quoted;
            inWord = true; // "" is an empty word
        } else if (blank && !quoted) {
            if (inWord)
                words << word;
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (quoted || escaped)
        return std::nullopt;
    if (inWord)
        words << word;
    return words;
}

QByteArray nutQuoted(const QByteArray& word)
{
    QByteArray quoted("\"");
    for (const char c : word) {
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7f')
            continue;
        if (c == '"' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

NutFailure nutNonsense(const QString& server)
{
    return {LinkState::Lost,
            {},
            Tr::tr("What %1 answers is not the language of a NUT server; check host and port.")
                .arg(server)};
}

NutFailure nutRefusal(const QByteArray& word)
{
    for (const RefusalRow& row : kRefusals)
        if (word == row.word)
            return {row.state, word, Tr::tr(row.text)};
    const QString shown = cleanDeviceText(word).left(40);
    return {LinkState::Refused, word.isEmpty() ? QByteArray("ERR") : word,
            shown.isEmpty() ? Tr::tr("The server refuses the request without saying why.")
                            : Tr::tr("The server refuses the request: %1.").arg(shown)};
}

#ifndef NUTPROTOCOL_H
#define NUTPROTOCOL_H

// The words of the NUT protocol: lines into words, words into lines, refusals into plain text.
// May touch: Qt Core, link states, readings. Pure functions, no socket.

#include "connectors/connector.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

using NutWords = QList<QByteArray>;

// Why a request brought nothing; state is Live when it brought what was asked for.
struct NutFailure {
    LinkState state = LinkState::Live;
    QByteArray error; // the server's word ("DATA-STALE"); empty when no answer came
    QString message;  // cause and cure, plain text for the operator

    explicit operator bool() const { return state != LinkState::Live; }
    bool isAnswer() const { return !error.isEmpty(); }
};

// One device of a server, as the server lists it.
struct NutUpsEntry {
    QString name;
    QString description;
};
Q_DECLARE_METATYPE(NutUpsEntry)

// The words of one line; blanks part them, double quotes hold them together and a backslash takes
// the next character as it is. Empty when a quote stays open.
std::optional<NutWords> splitNutLine(const QByteArray& line);

// One word in quotes, safe to put into a line: control characters are dropped.
QByteArray nutQuoted(const QByteArray& word);

// What answers is no NUT server. server: "HOST port PORT".
NutFailure nutNonsense(const QString& server);

// The link state and the plain text of a server's "ERR WORD".
NutFailure nutRefusal(const QByteArray& word);

#endif // NUTPROTOCOL_H

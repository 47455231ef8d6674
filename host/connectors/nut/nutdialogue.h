#ifndef NUTDIALOGUE_H
#define NUTDIALOGUE_H

// A conversation with a NUT server as questions and answers, apart from sockets, clocks and
// threads: a poll, a list of devices and each command are one.
// May touch: the protocol's words, Qt Core.

#include "connectors/nut/nutprotocol.h"

#include <chrono>
#include <optional>

struct NutQuestion {
    QByteArray line;                    // without its end
    std::chrono::milliseconds delay{0}; // to wait before sending
    bool isSecret = false;              // only over a link that may carry secrets
    bool isOrder = false;               // goes out once, whatever happens
    quint64 connection = 0;             // only over this one; 0: over any
    bool startsLimit = false;           // the time limit begins anew with this question
};

struct NutReply {
    // Refusals of the server, and why nothing came back.
    NutFailure failure;
    // The words of the answer, or of each row of a list.
    QList<NutWords> rows;
    bool wasSent = false;   // the question left this machine
    quint64 connection = 0; // another number: the server may have forgotten something
    LinkSecurity security;
    std::chrono::milliseconds elapsed{0}; // since the question was asked, its delay included
};

class NutDialogue
{
public:
    virtual ~NutDialogue() = default;

    // The next question; empty when all is said. Each one is followed by one take().
    virtual std::optional<NutQuestion> next() = 0;
    virtual void take(const NutReply& reply) = 0;
};

#endif // NUTDIALOGUE_H

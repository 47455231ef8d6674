#ifndef NUTANSWER_H
#define NUTANSWER_H

// Collects the lines that answer one question: one line, or a list from its begin to its end.
// May touch: the protocol's words. No socket.

#include "connectors/nut/nutprotocol.h"

class NutAnswer
{
public:
    static constexpr int kLongestLine = 2048; // octets; the server's own limit is far below
    static constexpr int kMostRows = 4096;    // of one list

    enum class State {
        Open,     // more lines are to come
        Complete, // rows() or refusal()
        Broken,   // refusal(), in the middle of a list: what follows belongs to nothing
        Unusable  // not the language of a NUT server
    };

    explicit NutAnswer(const QByteArray& question);

    // One line, without its end.
    State take(const QByteArray& line);

    const QList<NutWords>& rows() const { return m_rows; }
    const NutFailure& refusal() const { return m_refusal; }

private:
    State takeRow(const NutWords& words);

    NutWords m_asked; // what the list is of; empty: one line answers
    bool m_begun = false;
    QList<NutWords> m_rows;
    NutFailure m_refusal;
};

#endif // NUTANSWER_H

#include "connectors/nut/nutanswer.h"

NutAnswer::NutAnswer(const QByteArray& question)
{
    const NutWords words = splitNutLine(question).value_or(NutWords());
    if (words.value(0) == "LIST")
        m_asked = words.mid(1);
}

NutAnswer::State NutAnswer::take(const QByteArray& line)
{
    const auto words = splitNutLine(line);
    if (line.size() >= kLongestLine || !words || words->isEmpty())
        return State::Unusable;
    if (words->first() == "ERR") {
        m_refusal = nutRefusal(words->value(1));
        return m_begun ? State::Broken : State::Complete;
    }
    if (!m_asked.isEmpty())
        return takeRow(*words);
    m_rows << *words;
    return State::Complete;
}

NutAnswer::State NutAnswer::takeRow(const NutWords& words)
{
    if (!m_begun) {
        m_begun = words == NutWords{"BEGIN", "LIST"} + m_asked;
        return m_begun ? State::Open : State::Unusable;
    }
    if (words == NutWords{"END", "LIST"} + m_asked)
        return State::Complete;
    const bool isRow = words.size() > m_asked.size() && words.mid(0, m_asked.size()) == m_asked;
    if (!isRow || m_rows.size() >= kMostRows)
        return State::Unusable;
    m_rows << words;
    return State::Open;
}

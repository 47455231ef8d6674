#ifndef AGENTPROCESS_H
#define AGENTPROCESS_H

// Runs the agents in a process of their own, so that their work does not count as upsdesk's.
// May touch: this program's own file; the process ends with the object, and with the program.

#include <QProcess>
#include <QVector>

class AgentProcess
{
public:
    // The argument that makes this program be the agents.
    static constexpr char kArgument[] = "--agents";

    ~AgentProcess();

    // False where the process does not come up.
    bool start(int answering, int silent);

    const QVector<quint16>& answering() const { return m_answering; } // ports
    const QVector<quint16>& silent() const { return m_silent; }

    // The life of that process.
    static int serve(int answering, int silent);

private:
    QProcess m_process;
    QVector<quint16> m_answering;
    QVector<quint16> m_silent;
};

#endif // AGENTPROCESS_H

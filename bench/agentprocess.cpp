#include "agentprocess.h"

#include "agentfarm.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <unistd.h>

bool AgentProcess::start(int answering, int silent)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(
        QCoreApplication::applicationFilePath(),
        {QLatin1String(kArgument), QString::number(answering), QString::number(silent)});
    constexpr int kPatience = 10000; // ms
    while (!m_process.canReadLine())
        if (!m_process.waitForReadyRead(kPatience))
            return false;
    const QByteArrayList ports = m_process.readLine().trimmed().split(' ');
    for (const QByteArray& port : ports)
        (m_answering.size() < answering ? m_answering : m_silent) << port.toUShort();
    return m_silent.size() == silent;
}

AgentProcess::~AgentProcess()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

int AgentProcess::serve(int answering, int silent)
{
    const AgentFarm farm(answering, silent);
    const QByteArray line = farm.portLine();
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fflush(stdout);
    // The end of the input is the end of the program that started this one.
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, [] {
        char octet = 0;
        if (::read(STDIN_FILENO, &octet, 1) <= 0)
            QCoreApplication::quit();
    });
    return QCoreApplication::exec();
}

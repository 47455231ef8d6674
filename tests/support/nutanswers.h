#ifndef NUTANSWERS_H
#define NUTANSWERS_H

// What a well-behaved NUT server says, for a LineServer to say it.
// May touch: Qt Core.

#include <QByteArray>

// The answers of a server with one device, "unit", in good order.
inline QByteArray orderlyNutAnswer(const QByteArray& line, const QByteArray& status = "OL")
{
    const auto list = [&](const QByteArray& query, const QByteArray& rows) {
        return "BEGIN LIST " + query + '\n' + rows + "END LIST " + query + '\n';
    };
    const QByteArray query = QByteArray(line).replace("\"", "");
    if (query == "LIST VAR unit")
        return list("VAR unit", "VAR unit ups.status \"" + status + "\"\nVAR unit ups.id \"U\"\n");
    if (query == "LIST CMD unit")
        return list("CMD unit", "CMD unit shutdown.return\nCMD unit test.battery.start.quick\n");
    if (query == "LIST RW unit")
        return list("RW unit", "RW unit ups.delay.start \"30\"\n");
    if (query == "LIST UPS")
        return list("UPS", "UPS unit \"The only one\"\n");
    if (query == "STARTTLS")
        return "ERR FEATURE-NOT-CONFIGURED\n";
    if (query.startsWith("USERNAME") || query.startsWith("PASSWORD") || query == "SET TRACKING ON")
        return "OK\n";
    if (query.startsWith("SET VAR") || query.startsWith("INSTCMD"))
        return "OK TRACKING 17\n";
    if (query.startsWith("GET TRACKING"))
        return "SUCCESS\n";
    return "ERR UNKNOWN-COMMAND\n";
}

#endif // NUTANSWERS_H

#ifndef HOSTADDRESSES_H
#define HOSTADDRESSES_H

// The numeric addresses of one host name, for connectors of any protocol. Those that were found
// last are kept and used while the name server is silent. May touch: the system's resolver, in
// threads of its own. Lives in any thread with an event loop.

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class HostAddresses : public QObject
{
    Q_OBJECT

public:
    struct Found {
        QStringList addresses;
        QString error; // why there is none, plain text for the operator
    };
    // Blocks as long as it likes; called in a thread that nobody waits for, not even the exit.
    using Resolver = std::function<Found(const QString& host)>;
    using Handler = std::function<void(const Found& found)>;

    static Found askSystem(const QString& host);

    explicit HostAddresses(const QString& host, const Resolver& resolver = askSystem,
                           QObject* parent = nullptr);
    ~HostAddresses() override;

    QString host() const { return m_host; }

    // Calls back once, in this object's thread: at once where an address is known, otherwise when
    // the resolver has answered, which may take longer than the caller cares to wait. The address
    // to try first comes first.
    void find(const Handler& handler);
    // This one brought no answer: it is tried last from now on, and the next find() has the name
    // looked up anew beside the addresses known so far.
    void fail(const QString& address);

private:
    struct Lookup;

    void lookUp();
    void take(const Found& found);

    const QString m_host;
    const Resolver m_resolver;
    QStringList m_addresses;
    QString m_failed; // the last one that did
    bool m_isNumeric = false;
    bool m_isDoubtful = false;
    std::shared_ptr<Lookup> m_lookup; // while one is under way
    std::vector<Handler> m_waiting;
};

#endif // HOSTADDRESSES_H

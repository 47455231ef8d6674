#ifndef HOSTLOOKUP_H
#define HOSTLOOKUP_H

// Host names to numeric addresses, with a limit.
// May touch: the resolver of the system and the standard library.

#include <QByteArray>
#include <QList>

#include <chrono>
#include <memory>

// The system's resolver cannot be interrupted, and libupsclient repeats a lookup without end while
// no name server answers. So it only ever gets numeric addresses, and the lookup happens in a
// thread of its own that is left behind when it takes too long; the next call takes up the same
// lookup instead of starting another one.
class HostLookup
{
public:
    using Clock = std::chrono::steady_clock;
    enum class Outcome { Found, UnknownName, NoNameServer, TimedOut };

    struct Result {
        Outcome outcome = Outcome::TimedOut;
        QList<QByteArray> addresses; // numeric, in the order to try them
    };

    HostLookup();
    ~HostLookup();

    // Blocks until the deadline at most.
    Result find(const QByteArray& host, Clock::time_point deadline);
    // From any thread: find() returns at once.
    void abort();

private:
    struct Shared;
    std::shared_ptr<Shared> m_shared;
};

#endif // HOSTLOOKUP_H

// Names to addresses: what is known is kept, a silent name server holds up nobody.

#include "connectors/hostaddresses.h"

#include <QtTest>

#include <atomic>
#include <condition_variable>
#include <mutex>

namespace {

// A name server that answers when the test says so.
class Resolver
{
public:
    HostAddresses::Resolver function()
    {
        return [shared = m_shared](const QString&) {
            ++shared->asked;
            std::unique_lock<std::mutex> lock(shared->mutex);
            shared->changed.wait(lock, [&] { return shared->isReady; });
            shared->isReady = false;
            return shared->found;
        };
    }
    void answer(const HostAddresses::Found& found)
    {
        const std::lock_guard<std::mutex> lock(m_shared->mutex);
        m_shared->found = found;
        m_shared->isReady = true;
        m_shared->changed.notify_all();
    }
    int asked() const { return m_shared->asked; }

private:
    struct Shared {
        std::mutex mutex;
        std::condition_variable changed;
        std::atomic<int> asked{0};
        bool isReady = false;
        HostAddresses::Found found;
    };
    std::shared_ptr<Shared> m_shared = std::make_shared<Shared>(); // outlives the lookups
};

} // namespace

class TestHostAddresses : public QObject
{
    Q_OBJECT

private slots:
    void theLastGoodOnesAreKept()
    {
        Resolver resolver;
        HostAddresses names("ups.example", resolver.function());
        HostAddresses::Found found;
        int answers = 0;
        const auto take = [&](const HostAddresses::Found& result) {
            found = result;
            ++answers;
        };
        names.find(take);
        names.find(take); // shares the lookup
        resolver.answer({{}, "no such name"});
        QTRY_COMPARE(answers, 2);
        QCOMPARE(found.error, QString("no such name"));

        names.find(take);
        resolver.answer({{"10.0.0.1", "10.0.0.2"}, {}});
        QTRY_COMPARE(answers, 3);
        names.find(take);
        QCOMPARE(answers, 4); // at once, without a further question
        QTest::qWait(20);
        QCOMPARE(resolver.asked(), 2);

        // One that fails comes last; the name server is asked again and nobody waits for it.
        names.fail("10.0.0.1");
        names.find(take);
        QCOMPARE(found.addresses, QStringList({"10.0.0.2", "10.0.0.1"}));
        resolver.answer({{}, "the name server is out of order"});
        QTRY_COMPARE(resolver.asked(), 3);
        QTest::qWait(0);
        names.find(take);
        QCOMPARE(found.addresses.size(), 2);

        resolver.answer({{"10.0.0.1", "10.0.0.3"}, {}});
        QTRY_VERIFY((names.find(take), found.addresses == QStringList({"10.0.0.3", "10.0.0.1"})));
    }

    void numbersAreNotLookedUp()
    {
        for (const char* number : {"127.0.0.1", "fe80::1"}) {
            QStringList addresses;
            HostAddresses names(number, [](const QString&) -> HostAddresses::Found {
                qFatal("looked up");
                return {};
            });
            names.fail(number);
            names.find([&](const HostAddresses::Found& found) { addresses = found.addresses; });
            QCOMPARE(addresses, QStringList(number));
        }
    }

    void nobodyIsWaitedFor()
    {
        Resolver resolver;
        auto names = std::make_unique<HostAddresses>("ups.example", resolver.function());
        bool isTold = false;
        names->find([&](const HostAddresses::Found&) { isTold = true; });
        QTRY_COMPARE(resolver.asked(), 1);
        names.reset();
        resolver.answer({{"10.0.0.1"}, {}});
        QTest::qWait(50);
        QVERIFY(!isTold);
    }
};

QTEST_GUILESS_MAIN(TestHostAddresses)
#include "tst_hostaddresses.moc"

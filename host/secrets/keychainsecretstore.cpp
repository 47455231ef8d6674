#include "secrets/keychainsecretstore.h"

#include "reading/sanitize.h"
#include "secrets/keychaincall.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <memory>

#include <qt5keychain/keychain.h>

namespace {

const QString kService = QStringLiteral("upsdesk");
constexpr unsigned long kStopWait = 1000; // ms

// QtKeychain queues its jobs in an object that stays in the thread of the first one; so there is
// one thread for the life of the application. It is left alone where a bus blocks it at the end.
class KeychainThread
{
public:
    static QObject* worker()
    {
        if (!s_thread) {
            s_thread = new QThread;
            s_worker = new QObject;
            s_worker->moveToThread(s_thread);
            s_thread->start();
            qAddPostRoutine(stop);
        }
        return s_worker;
    }

private:
    static void stop()
    {
        s_thread->quit();
        if (!s_thread->wait(kStopWait))
            return;
        delete s_worker;
        delete s_thread;
    }

    static QThread* s_thread;
    static QObject* s_worker;
};

QThread* KeychainThread::s_thread = nullptr;
QObject* KeychainThread::s_worker = nullptr;

QString withCure(const QString& reason)
{
    return KeychainSecretStore::tr(
               "The desktop's keychain cannot be used: %1. Start a keychain service, for example "
               "GNOME Keyring or KWallet, and log in again; or write \"store = file\" under "
               "[secrets] in the configuration to keep secrets in a file that only you can read.")
        .arg(reason);
}

SecretResult resultOf(const QKeychain::Job& job, bool reading)
{
    switch (job.error()) {
    case QKeychain::NoError:
        return {SecretResult::Status::Done, {}, {}};
    case QKeychain::EntryNotFound:
        return {reading ? SecretResult::Status::NotFound : SecretResult::Status::Done, {}, {}};
    case QKeychain::AccessDenied:
    case QKeychain::AccessDeniedByUser:
        return {
            SecretResult::Status::Failed,
            {},
            KeychainSecretStore::tr("Access to the desktop's keychain was denied; unlock it and "
                                    "try again.")};
    default:
        return {SecretResult::Status::Failed,
                {},
                withCure(cleanDeviceText(job.errorString().isEmpty()
                                             ? KeychainSecretStore::tr("it gives no reason")
                                             : job.errorString()))};
    }
}

std::unique_ptr<QKeychain::Job> makeReader(const std::shared_ptr<KeychainCall>& call)
{
    auto job = std::make_unique<QKeychain::ReadPasswordJob>(kService);
    QObject::connect(job.get(), &QKeychain::Job::finished, [call, reader = job.get()] {
        SecretResult result = resultOf(*reader, true);
        if (result.status == SecretResult::Status::Done)
            result.secret = SecretText(reader->textData());
        emit call->finished(result);
    });
    return job;
}

template <typename Job>
std::unique_ptr<Job> makeWriter(const std::shared_ptr<KeychainCall>& call)
{
    auto job = std::make_unique<Job>(kService);
    QObject::connect(job.get(), &QKeychain::Job::finished,
                     [call](QKeychain::Job* done) { emit call->finished(resultOf(*done, false)); });
    return job;
}

void startJob(const SecretStore::Errand& errand, const std::shared_ptr<KeychainCall>& call)
{
    std::unique_ptr<QKeychain::Job> job;
    if (errand.action == SecretStore::Action::Read) {
        job = makeReader(call);
    } else if (errand.action == SecretStore::Action::Remove || errand.secret.isEmpty()) {
        job = makeWriter<QKeychain::DeletePasswordJob>(call);
    } else {
        auto writer = makeWriter<QKeychain::WritePasswordJob>(call);
        writer->setTextData(errand.secret.toString());
        job = std::move(writer);
    }
    job->setKey(errand.key);
    job.release()->start(); // deletes itself when it has finished
}

} // namespace

KeychainSecretStore::KeychainSecretStore(int timeLimit, QObject* parent)
    : SecretStore(parent)
    , m_timeLimit(timeLimit)
{
    qRegisterMetaType<SecretResult>();
}

void KeychainSecretStore::carryOut(const Errands& errands, const Callback& done)
{
    next(errands, {}, done);
}

void KeychainSecretStore::next(const Errands& errands, const Results& results, const Callback& done)
{
    if (results.size() == errands.size())
        return done(results);
    ask(errands.at(results.size()), [=](const SecretResult& result) {
        Results more = results;
        const bool failed = result.status == SecretResult::Status::Failed;
        more += failed ? Results(errands.size() - results.size(), result) : Results{result};
        next(errands, more, done);
    });
}

void KeychainSecretStore::ask(const Errand& errand, const Answer& answer)
{
    const auto answered = std::make_shared<bool>(false);
    const auto once = [answered, answer](const SecretResult& result) {
        if (!std::exchange(*answered, true))
            answer(result);
    };
    const auto call = std::make_shared<KeychainCall>();
    connect(call.get(), &KeychainCall::finished, this, once, Qt::QueuedConnection);
    QTimer::singleShot(m_timeLimit, this, [once] {
        once({SecretResult::Status::Failed, {}, withCure(tr("it does not answer"))});
    });
    QMetaObject::invokeMethod(
        KeychainThread::worker(), [errand, call] { startJob(errand, call); }, Qt::QueuedConnection);
}

// What was stored is shown again as it was, to and fro, and takes no command.

#include "support/quietplatform.h"

#include "history/historywriter.h"
#include "history/quantities.h"
#include "window/devicepage.h"
#include "window/replaypage.h"

#include "childform.h"
#include "globalvar.h"

#include <QDeadlineTimer>
#include <QFrame>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kLimitMs = 10000;
constexpr qint64 kStart = 1774746020000; // within a minute, whose mean tells nothing more
constexpr int kInterval = 5000;          // ms
constexpr int kSamples = 600;
constexpr int kOutage = 500; // first sample on battery
constexpr int kSilence = 590;
constexpr int kForgotten = 308; // the first full sample that is left later; begins a minute

DeviceSettings settings()
{
    DeviceSettings settings;
    settings.name = "Rack";
    settings.address = *parseDeviceAddress("nut://127.0.0.1/rack").address;
    settings.pollInterval = kInterval / 1000;
    settings.scales = {{"battery.charge", 10}}; // was applied before it was stored
    return settings;
}

Sample sampleAt(int number)
{
    Sample sample;
    sample.timeMs = kStart + number * kInterval;
    sample.link = number < kSilence ? LinkState::Live : LinkState::Lost;
    if (sample.link != LinkState::Live)
        return sample;
    sample.reading.charge = 100 - number % 50;
    sample.reading.outputSource = number < kOutage ? OutputSource::Utility : OutputSource::Battery;
    sample.reading.input.voltage[0] = number < kOutage ? 230 : 0;
    sample.reading.output.voltage[0] = 229;
    return sample;
}

} // namespace

class TestReplay : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<HistoryWriter> m_writer;
    std::unique_ptr<HistoryReader> m_reader;

private slots:
    void initTestCase();
    void cleanupTestCase();
    void playerGoesToAndFro();
    void pageShowsThePastAndSendsNothing();
    void meansWhereSamplesAreGone();
};

void TestReplay::initTestCase()
{
    dropRemarksOfThePlatform();
    HistoryWriterOptions options;
    options.store = parseStoreAddress("sqlite:" + m_folder.filePath("h.db")).address;
    options.spoolFolder = m_folder.path();
    options.keep = {100000 * kMsPerDay, 100000 * kMsPerDay, 100000 * kMsPerDay, 100000 * kMsPerDay};
    m_writer = std::make_unique<HistoryWriter>(options);
    m_writer->start();
    UpsReading info;
    info.model = "Model 7";
    m_writer->addInfo("Rack", "nut://127.0.0.1/rack", kStart, info);
    JournalEntry outage;
    outage.key = newJournalKey();
    outage.device = "Rack";
    outage.kind = JournalKind::Condition;
    outage.text = "On battery";
    outage.onsetMs = sampleAt(kOutage).timeMs - 1000;
    m_writer->begin(outage, "nut://127.0.0.1/rack");
    for (int i = 0; i < kSamples; ++i)
        m_writer->addSample("Rack", "nut://127.0.0.1/rack", sampleAt(i));
    QTRY_VERIFY_WITH_TIMEOUT(m_writer->written() >= kSamples + 2, kLimitMs);
    m_reader = std::make_unique<HistoryReader>(options.store);
}

void TestReplay::cleanupTestCase()
{
    m_reader.reset();
    m_writer.reset();
}

void TestReplay::playerGoesToAndFro()
{
    ReplayPlayer player(m_reader.get(), "Rack");
    QVector<StoredReading> shown;
    qint64 since = -1;
    connect(&player, &ReplayPlayer::jumped, this,
            [&](const QVector<StoredReading>& before, qint64 sinceMs) {
                shown = before;
                since = sinceMs;
            });
    connect(&player, &ReplayPlayer::played, this,
            [&](const StoredReading& reading) { shown << reading; });
    player.open(sampleAt(10).timeMs + 1);
    QTRY_VERIFY_WITH_TIMEOUT(!shown.isEmpty(), kLimitMs);
    QCOMPARE(player.range().fromMs, kStart);
    QCOMPARE(shown.size(), 11); // nothing is stored before the first
    QCOMPARE(shown.constLast().timeMs, sampleAt(10).timeMs);
    QCOMPARE(shown.constLast().reading.model, QString("Model 7"));
    QCOMPARE(since, qint64(0));

    player.setSpeed(10);
    const auto playTo = [&](int number) {
        const QDeadlineTimer limit(kLimitMs);
        while (!limit.hasExpired() && player.timeMs() < sampleAt(number).timeMs) {
            const qint64 before = player.timeMs();
            player.advance(100);
            QCoreApplication::processEvents();
            if (player.timeMs() == before)
                QTest::qWait(1); // the store is still reading
        }
    };
    playTo(520); // beyond what one question brings
    for (int i = 0; i < shown.size(); ++i)
        QCOMPARE(shown.at(i).timeMs, sampleAt(i).timeMs); // none twice, none left out
    QVERIFY(shown.size() >= 520);
    QCOMPARE(shown.at(510).reading.outputSource, OutputSource::Battery);

    player.seek(0); // many wishes, one answer: the last
    player.seek(sampleAt(550).timeMs);
    QTRY_COMPARE_WITH_TIMEOUT(player.timeMs(), sampleAt(550).timeMs, kLimitMs);
    QCOMPARE(shown.size(), ReplayPlayer::kBefore);
    QCOMPARE(since, sampleAt(kOutage).timeMs - 1000);
    player.step(false);
    QTRY_COMPARE_WITH_TIMEOUT(player.timeMs(), sampleAt(549).timeMs, kLimitMs);
    for (int i = 0; i < 10000 && player.timeMs() < sampleAt(550).timeMs; ++i) {
        player.step(true); // once the reading is there
        QTest::qWait(1);
    }
    QCOMPARE(player.timeMs(), sampleAt(550).timeMs);
    player.play();
    playTo(kSamples - 1);
    for (int i = 0; i < 1000 && player.isPlaying(); ++i)
        player.advance(1000);
    QVERIFY(!player.isPlaying()); // the end
    QCOMPARE(shown.constLast().timeMs, sampleAt(kSamples - 1).timeMs);
}

void TestReplay::pageShowsThePastAndSendsNothing()
{
    ReplayPage page(settings(), Thresholds(), "Rack", m_reader.get());
    page.resize(1000, 800);
    page.show();
    page.open(sampleAt(kOutage + 3).timeMs);
    auto* device = page.findChild<DevicePage*>();
    QTRY_VERIFY_WITH_TIMEOUT(device->device().reading(), kLimitMs);
    const Device& past = device->device();
    QCOMPARE(past.condition().state, QString("On battery"));
    QCOMPARE(past.conditionSince().toMSecsSinceEpoch(), sampleAt(kOutage).timeMs - 1000);
    QCOMPARE(past.snapshot(SnapshotPage::Device),
             deviceSnapshot(*past.reading(), SnapshotPage::Device,
                            {false, "nut", linkStateName(LinkState::Live), 0, past.address()}));
    QCOMPARE(*past.reading()->charge, *sampleAt(kOutage + 3).reading.charge);
    QVERIFY(page.findChild<QFrame*>("ReplayBar")->isVisible());

    // The view posts a command, whatever it shows.
    QSignalSpy sent(&device->device(), &Device::commandFinished);
    auto* view = page.findChild<ChildForm*>();
    emit view->postDEvent(1007, {{"controlValue", "0"}});
    device->device().send(UpsCommand());
    QCOMPARE(sent.count(), 1); // the second, refused by the past itself
    QCOMPARE(sent.at(0).at(0).value<CommandResult>().outcome, CommandOutcome::Refused);

    auto* slider = page.findChild<QSlider*>("ReplaySlider");
    slider->setValue((sampleAt(kSilence + 5).timeMs - kStart) / 1000);
    QTRY_COMPARE_WITH_TIMEOUT(past.link(), LinkState::Lost, kLimitMs);
    slider->setValue((sampleAt(3).timeMs - kStart) / 1000);
    QTRY_COMPARE_WITH_TIMEOUT(past.condition().state, QString("On mains"), kLimitMs);
    QVERIFY(past.conditionSince().toMSecsSinceEpoch() <= sampleAt(3).timeMs);
}

// A week later only means are left of what came first.
void TestReplay::meansWhereSamplesAreGone()
{
    m_writer->stop();
    {
        QSqlDatabase base = QSqlDatabase::addDatabase("QSQLITE", "forget");
        base.setDatabaseName(m_folder.filePath("h.db"));
        QVERIFY(base.open());
        QVERIFY(QSqlQuery(base).exec(
            QString("DELETE FROM samples WHERE t < %1").arg(sampleAt(kForgotten).timeMs)));
    }
    QSqlDatabase::removeDatabase("forget");
    QVector<StoredReading> frames;
    bool isAnswered = false;
    m_reader->ask<QVector<StoredReading>>(
        this,
        [](HistoryQueries& store) {
            return store.framesBefore(store.device("Rack")->id, sampleAt(kForgotten + 9).timeMs,
                                      20);
        },
        [&](const QVector<StoredReading>& answer, const QString& error) {
            QCOMPARE(error, QString());
            frames = answer;
            isAnswered = true;
        });
    QTRY_VERIFY_WITH_TIMEOUT(isAnswered, kLimitMs);
    QCOMPARE(frames.size(), 20);
    for (int i = 0; i < frames.size(); ++i) {
        QCOMPARE(frames.at(i).spanMs, i < 10 ? kMsPerMinute : 0);
        QVERIFY(i == 0 || frames.at(i).timeMs >= frames.at(i - 1).timeMs + frames.at(i - 1).spanMs);
    }
    QCOMPARE(frames.at(0).reading.outputSource, OutputSource::Utility);
    QCOMPARE(*frames.at(0).reading.output.voltage[0], 229.0);
    QCOMPARE(frames.at(0).reading.model, QString("Model 7"));
}

QTEST_MAIN(TestReplay)
#include "tst_replay.moc"

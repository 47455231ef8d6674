// The journal in the window: pages of rows, filters, acknowledging, the file; texts stay plain.

#include "support/quietplatform.h"

#include "history/historyreader.h"
#include "history/historywriter.h"
#include "window/journalpage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

namespace {

constexpr int kLimitMs = 20000;
constexpr int kEntries = 700;
constexpr qint64 kFirstMs = 1774746000000;
const QString kHostile = QStringLiteral("=<b>\"mains\",</b> %s %1");

JournalEntry entryAt(int number)
{
    JournalEntry entry;
    entry.key = newJournalKey();
    entry.device = number % 2 ? QStringLiteral("A") : QStringLiteral("B");
    entry.kind = number % 3 ? JournalKind::Alarm : JournalKind::Outage;
    entry.severity = number % 3 ? Urgency::Warning : Urgency::Critical;
    entry.text = number == 3 ? kHostile : QStringLiteral("entry %1").arg(number);
    entry.onsetMs = kFirstMs + number * 1000;
    if (number != 5)
        entry.endMs = entry.onsetMs + 90061000;
    return entry;
}

} // namespace

class TestJournalPage : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<HistoryWriter> m_writer;
    std::unique_ptr<HistoryReader> m_reader;
    OperatorSession m_session;
    std::unique_ptr<JournalPage> m_page;
    QTreeView* m_view = nullptr;

    template <typename T>
    T* part(const char* name)
    {
        return m_page->findChild<T*>(QLatin1String(name));
    }
    QString cell(int row, int column)
    {
        return m_view->model()->index(row, column).data().toString();
    }
    void choose(const char* box, int index)
    {
        part<QComboBox>(box)->setCurrentIndex(index);
        emit part<QComboBox>(box)->activated(index);
    }

private slots:
    void initTestCase() { dropRemarksOfThePlatform(); }
    void init();
    void pagesFollowTheView();
    void filtersChoose();
    void newEntriesKeepTheSelection();
    void acknowledges();
    void exports();
};

void TestJournalPage::init()
{
    m_page.reset();
    m_reader.reset();
    m_writer.reset();
    HistoryWriterOptions options;
    const QString base = m_folder.filePath(QLatin1String(QTest::currentTestFunction()));
    options.store = parseStoreAddress(QStringLiteral("sqlite:%1.db").arg(base)).address;
    options.spoolFolder = base;
    options.commitMs = 20;
    m_writer = std::make_unique<HistoryWriter>(options);
    m_writer->start();
    for (int i = 0; i < kEntries; ++i)
        m_writer->begin(entryAt(i));
    QTRY_COMPARE_WITH_TIMEOUT(m_writer->written(), quint64(kEntries), kLimitMs);
    m_reader = std::make_unique<HistoryReader>(options.store);
    m_page = std::make_unique<JournalPage>(m_session);
    m_view = part<QTreeView>("JournalList");
    m_page->setStore(m_reader.get(), m_writer.get());
    m_page->show();
    QTRY_VERIFY_WITH_TIMEOUT(m_view->model()->rowCount() >= JournalModel::kPageRows, kLimitMs);
}

void TestJournalPage::pagesFollowTheView()
{
    QCOMPARE(cell(0, JournalModel::Text), QStringLiteral("entry %1").arg(kEntries - 1));
    QCOMPARE(cell(0, JournalModel::Duration), QStringLiteral("1 d 1:01:01"));
    m_view->scrollToBottom();
    if (m_view->model()->canFetchMore({}))
        m_view->model()->fetchMore({});
    QTRY_COMPARE_WITH_TIMEOUT(m_view->model()->rowCount(), kEntries, kLimitMs);
    m_view->sortByColumn(JournalModel::Onset, Qt::AscendingOrder);
    QTRY_COMPARE_WITH_TIMEOUT(cell(0, JournalModel::Text), QStringLiteral("entry 0"), kLimitMs);
}

void TestJournalPage::filtersChoose()
{
    QTRY_COMPARE_WITH_TIMEOUT(m_view->model()->rowCount() > 0, true, kLimitMs);
    part<QLineEdit>("JournalText")->setText(QStringLiteral("ENTRY 69"));
    QTRY_COMPARE_WITH_TIMEOUT(m_view->model()->rowCount(), 11, kLimitMs); // 69, 690 to 699
    choose("JournalKind", 1 + static_cast<int>(JournalKind::Outage));
    QTRY_COMPARE_WITH_TIMEOUT(m_view->model()->rowCount(), 5, kLimitMs); // 69, 690, 693 ...
    part<QLineEdit>("JournalText")->clear();
    choose("JournalKind", 0);
    part<QCheckBox>("JournalOnlyOpen")->setChecked(true);
    QTRY_COMPARE_WITH_TIMEOUT(m_view->model()->rowCount(), 1, kLimitMs);
    QCOMPARE(cell(0, JournalModel::Duration), QStringLiteral("still so"));
    choose("JournalSeverity", static_cast<int>(Urgency::Critical));
    QTRY_COMPARE_WITH_TIMEOUT(m_view->model()->rowCount(), 0, kLimitMs);
}

void TestJournalPage::newEntriesKeepTheSelection()
{
    m_view->setCurrentIndex(m_view->model()->index(2, 0));
    const QString chosen = cell(2, JournalModel::Text);
    m_writer->begin(entryAt(kEntries));
    QTRY_COMPARE_WITH_TIMEOUT(cell(0, JournalModel::Text), QStringLiteral("entry %1").arg(kEntries),
                              kLimitMs);
    QCOMPARE(m_view->currentIndex().row(), 3);
    QCOMPARE(cell(3, JournalModel::Text), chosen);
}

void TestJournalPage::acknowledges()
{
    auto* button = part<QPushButton>("JournalAcknowledge");
    QVERIFY(!button->isEnabled());
    m_view->setCurrentIndex(m_view->model()->index(0, 0));
    QVERIFY(button->isEnabled());
    m_page->acknowledge(QStringLiteral("seen"));
    QTRY_VERIFY_WITH_TIMEOUT(cell(0, JournalModel::Acknowledged).endsWith(QStringLiteral("seen")),
                             kLimitMs);
    QVERIFY(!button->isEnabled());
}

void TestJournalPage::exports()
{
    part<QLineEdit>("JournalText")->setText(QStringLiteral("mains"));
    QTRY_COMPARE_WITH_TIMEOUT(m_view->model()->rowCount(), 1, kLimitMs);
    QCOMPARE(cell(0, JournalModel::Text), kHostile);
    const QString tip =
        m_view->model()->index(0, JournalModel::Text).data(Qt::ToolTipRole).toString();
    QVERIFY(tip.contains(QStringLiteral("&lt;b&gt;")));
    QSignalSpy told(m_page.get(), &JournalPage::told);
    const QString path = m_folder.filePath(QStringLiteral("journal.csv"));
    m_page->exportTo(path);
    QTRY_COMPARE_WITH_TIMEOUT(told.count(), 1, kLimitMs);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QVERIFY(text.startsWith("onset,end,"));
    QVERIFY(text.contains("\"'=<b>\"\"mains\"\",</b> %s %1\""));
    QCOMPARE(text.count("\r\n"), 2);
    m_page->exportTo(m_folder.filePath(QStringLiteral("none/journal.csv")));
    QTRY_COMPARE_WITH_TIMEOUT(told.count(), 2, kLimitMs);
    QVERIFY(told.at(1).at(1).toBool());
}

QTEST_MAIN(TestJournalPage)
#include "tst_journalpage.moc"

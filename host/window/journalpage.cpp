#include "window/journalpage.h"

#include "connectors/devicesettings.h"
#include "history/historytext.h"
#include "reading/sanitize.h"
#include "window/operatorgate.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int kTypingMs = 250;   // after the last key, the filter is applied
constexpr int kRefreshMs = 1000; // commits come with every poll
constexpr int kExportRows = 5000;
constexpr int kMargin = 8; // px
constexpr int kMostNote = 255;
constexpr qint64 kBeforeOnset = 30 * 1000; // ms
constexpr int kLongestName = 24; // characters that a device's name may widen the filter to
constexpr int kColumnWidths[] = {150, 90, 130, 90, 75, 220, 240, 90}; // px

constexpr struct {
    const char* text;
    int hours; // 0: no limit
} kPeriods[] = {{QT_TRANSLATE_NOOP("JournalPage", "Any time"), 0},
                {QT_TRANSLATE_NOOP("JournalPage", "Last hour"), 1},
                {QT_TRANSLATE_NOOP("JournalPage", "Last day"), 24},
                {QT_TRANSLATE_NOOP("JournalPage", "Last week"), 7 * 24},
                {QT_TRANSLATE_NOOP("JournalPage", "Last 30 days"), 30 * 24},
                {QT_TRANSLATE_NOOP("JournalPage", "Last year"), 366 * 24}};

// Runs in the reader's thread. Empty, or why there is no file.
QString writeEntries(HistoryQueries& store, JournalFilter filter, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    file.write(csvLine(journalTitles()).toUtf8());
    filter.limit = kExportRows;
    filter.oldestFirst = true; // what is added meanwhile moves no page
    int got = kExportRows;
    for (filter.offset = 0; got == kExportRows; filter.offset += got) {
        const QVector<JournalEntry> entries = store.journal(filter);
        if (!store.errorText().isEmpty())
            return store.errorText();
        for (const JournalEntry& entry : entries)
            file.write(csvLine(journalFields(entry)).toUtf8());
        got = entries.size();
    }
    return file.commit() ? QString() : file.errorString();
}

QLabel* labelFor(QWidget* field, const QString& text)
{
    auto* label = new QLabel(text);
    label->setBuddy(field);
    return label;
}

} // namespace

JournalPage::JournalPage(OperatorSession& session, QWidget* parent)
    : QWidget(parent)
    , m_session(session)
    , m_gate(new OperatorGate(session, this))
    , m_model(new JournalModel(this))
    , m_view(new QTreeView)
    , m_device(new QComboBox)
    , m_kind(new QComboBox)
    , m_period(new QComboBox)
    , m_severity(new QComboBox)
    , m_text(new QLineEdit)
    , m_onlyOpen(new QCheckBox(tr("Still s&o")))
    , m_onlyNew(new QCheckBox(tr("Not acknowled&ged")))
    , m_acknowledge(new QPushButton(tr("Ack&nowledge \u2026")))
    , m_export(new QPushButton(tr("&Export \u2026")))
    , m_replay(new QPushButton(tr("&Replay")))
    , m_state(new QLabel)
{
    setObjectName(QStringLiteral("JournalPage"));
    m_state->setObjectName(QStringLiteral("JournalState"));
    m_state->setTextFormat(Qt::PlainText);
    makeView();
    m_state->setSizePolicy(QSizePolicy::Ignored,
                           QSizePolicy::Preferred); // an error is as long as it likes
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addLayout(makeFilters());
    column->addLayout(makeSearch());
    column->addWidget(m_view, 1);
    column->addLayout(makeButtons());
    for (QTimer* timer : {&m_typing, &m_refresh})
        timer->setSingleShot(true);
    m_typing.setInterval(kTypingMs);
    m_refresh.setInterval(kRefreshMs);
    connect(&m_typing, &QTimer::timeout, this, &JournalPage::applyFilter);
    connect(&m_refresh, &QTimer::timeout, this, &JournalPage::refresh);
    connect(m_model, &JournalModel::answered, this, &JournalPage::showState);
    showState({});
    showChoice();
}

// Building

QHBoxLayout* JournalPage::makeFilters()
{
    const struct {
        QComboBox* box;
        const char* name;
        QString label;
    } boxes[] = {{m_device, "JournalDevice", tr("Devi&ce")},
                 {m_kind, "JournalKind", tr("&Kind")},
                 {m_period, "JournalPeriod", tr("T&ime")},
                 {m_severity, "JournalSeverity", tr("&Severity from")}};
    auto* row = new QHBoxLayout;
    for (const auto& box : boxes) {
        box.box->setObjectName(QLatin1String(box.name));
        box.box->setAccessibleName(QString(box.label).remove(QLatin1Char('&')));
        row->addWidget(labelFor(box.box, box.label));
        row->addWidget(box.box);
        connect(box.box, QOverload<int>::of(&QComboBox::activated), this,
                &JournalPage::applyFilter);
    }
    m_device->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_device->setMinimumContentsLength(kLongestName / 2);
    m_device->addItem(tr("All"));
    m_kind->addItem(tr("All"));
    for (int kind = 0; kind <= static_cast<int>(JournalKind::Desk); ++kind)
        m_kind->addItem(JournalModel::kindText(static_cast<JournalKind>(kind)), kind);
    for (const auto& period : kPeriods)
        m_period->addItem(tr(period.text), period.hours);
    for (int severity = 0; severity <= static_cast<int>(Urgency::Critical); ++severity)
        m_severity->addItem(JournalModel::severityText(static_cast<Urgency>(severity)), severity);
    row->addStretch(1);
    return row;
}

QHBoxLayout* JournalPage::makeSearch()
{
    m_text->setObjectName(QStringLiteral("JournalText"));
    m_text->setAccessibleName(tr("Text"));
    m_text->setPlaceholderText(tr("in entry, message or note"));
    m_text->setClearButtonEnabled(true);
    m_onlyOpen->setObjectName(QStringLiteral("JournalOnlyOpen"));
    m_onlyOpen->setToolTip(tr("What has begun and is not over: the alarms of the desk"));
    m_onlyNew->setObjectName(QStringLiteral("JournalOnlyNew"));
    connect(m_text, &QLineEdit::textChanged, this, [this] { m_typing.start(); });
    auto* row = new QHBoxLayout;
    row->addWidget(labelFor(m_text, tr("Te&xt")));
    row->addWidget(m_text, 1);
    for (QCheckBox* box : {m_onlyOpen, m_onlyNew}) {
        row->addWidget(box);
        connect(box, &QCheckBox::toggled, this, &JournalPage::applyFilter);
    }
    return row;
}

QHBoxLayout* JournalPage::makeButtons()
{
    m_replay->setObjectName(QStringLiteral("JournalReplay"));
    m_acknowledge->setObjectName(QStringLiteral("JournalAcknowledge"));
    m_export->setObjectName(QStringLiteral("JournalExport"));
    connect(m_replay, &QPushButton::clicked, this, [this] { replayFrom(m_view->currentIndex()); });
    connect(m_view, &QTreeView::activated, this, &JournalPage::replayFrom);
    connect(m_acknowledge, &QPushButton::clicked, this, &JournalPage::askForNote);
    connect(m_export, &QPushButton::clicked, this, &JournalPage::askForPath);
    auto* row = new QHBoxLayout;
    row->addWidget(m_state, 1);
    for (QPushButton* button : {m_replay, m_acknowledge, m_export})
        row->addWidget(button);
    return row;
}

void JournalPage::makeView()
{
    m_view->setObjectName(QStringLiteral("JournalList"));
    m_view->setAccessibleName(tr("Journal"));
    m_view->setModel(m_model);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setSortingEnabled(true);
    m_view->sortByColumn(JournalModel::Onset, Qt::DescendingOrder);
    for (int column = 0; column < static_cast<int>(std::size(kColumnWidths)); ++column)
        m_view->setColumnWidth(column, kColumnWidths[column]);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &JournalPage::showChoice);
    connect(m_model, &QAbstractItemModel::modelReset, this, &JournalPage::showChoice);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &JournalPage::showChoice);
}

// Reading

void JournalPage::setStore(HistoryReader* reader, HistoryWriter* writer)
{
    m_reader = reader;
    m_writer = writer;
    m_model->setReader(reader);
    if (writer)
        connect(writer, &HistoryWriter::committed, this, [this] {
            if (isVisible() && !m_refresh.isActive())
                m_refresh.start();
        });
    readDevices();
    showState({});
    showChoice();
}

void JournalPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    readDevices();
    refresh();
}

void JournalPage::refresh()
{
    if (isVisible())
        m_model->refresh();
}

void JournalPage::readDevices()
{
    if (!m_reader)
        return;
    m_reader->ask<QVector<StoredDevice>>(
        this, [](HistoryQueries& store) { return store.devices(); },
        [this](const QVector<StoredDevice>& devices, const QString&) {
            for (const StoredDevice& device : devices)
                if (const QString name = nameAtSite(device.site, device.name);
                    m_device->findData(name) < 0)
                    m_device->addItem(cleanDeviceText(name), name);
        });
}

void JournalPage::applyFilter()
{
    JournalFilter filter;
    filter.oldestFirst = m_model->filter().oldestFirst;
    filter.device = m_device->currentData().toString();
    if (m_kind->currentIndex() > 0)
        filter.kinds = {static_cast<JournalKind>(m_kind->currentData().toInt())};
    if (const int hours = m_period->currentData().toInt(); hours > 0)
        filter.fromMs = QDateTime::currentMSecsSinceEpoch() - hours * kMsPerHour;
    if (m_severity->currentIndex() > 0)
        filter.atLeast = static_cast<Urgency>(m_severity->currentData().toInt());
    filter.text = m_text->text().trimmed();
    filter.onlyOpen = m_onlyOpen->isChecked();
    filter.onlyUnacknowledged = m_onlyNew->isChecked();
    m_model->setFilter(filter);
}

void JournalPage::showState(const QString& error)
{
    const int rows = m_model->rowCount();
    QString text = m_model->canFetchMore({}) ? tr("%1 entries and more").arg(rows)
                                             : tr("%1 entries").arg(rows);
    if (!m_reader)
        text = tr("This desk keeps no history.");
    m_state->setText(error.isEmpty() ? text : error);
    m_export->setEnabled(m_reader);
}

// Doing

void JournalPage::showChoice()
{
    bool isNew = false;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
        isNew = isNew || !m_model->entry(index.row()).acknowledgedMs;
    m_acknowledge->setEnabled(m_writer && isNew);
    m_replay->setEnabled(m_reader &&
                         !m_model->entry(m_view->currentIndex().row()).device.isEmpty());
}

// A little before the onset, so that one sees it happen.
void JournalPage::replayFrom(const QModelIndex& index)
{
    const JournalEntry entry = m_model->entry(index.row());
    if (m_reader && !entry.device.isEmpty())
        emit replayWanted(nameAtSite(entry.site, entry.device), entry.onsetMs - kBeforeOnset);
}

void JournalPage::askForNote()
{
    m_gate->pass([this] {
        auto* dialog = new QInputDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->setWindowTitle(tr("Acknowledge"));
        dialog->setLabelText(tr("Note (may be empty)"));
        connect(dialog, &QInputDialog::textValueSelected, this, &JournalPage::acknowledge);
        dialog->open();
    });
}

void JournalPage::acknowledge(const QString& note)
{
    if (!m_writer || !m_session.whyNoChange().isEmpty())
        return;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows()) {
        const JournalEntry entry = m_model->entry(index.row());
        if (!entry.acknowledgedMs)
            m_writer->acknowledge(entry.key, m_session.name(), now, note.left(kMostNote));
    }
}

void JournalPage::askForPath()
{
    auto* dialog = new QFileDialog(this, tr("Export the journal"), QString(),
                                   tr("CSV files (*.csv);;All files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("csv"));
    connect(dialog, &QFileDialog::fileSelected, this, &JournalPage::exportTo);
    dialog->open();
}

void JournalPage::exportTo(const QString& path)
{
    if (!m_reader)
        return;
    const JournalFilter filter = m_model->filter();
    m_reader->ask<QString>(
        this, [filter, path](HistoryQueries& store) { return writeEntries(store, filter, path); },
        [this, path](const QString& fault, const QString& error) {
            const QString reason = fault.isEmpty() ? error : fault;
            emit told(reason.isEmpty() ? tr("The journal is in %1").arg(path)
                                       : tr("The journal was not exported: %1").arg(reason),
                      !reason.isEmpty());
        });
}

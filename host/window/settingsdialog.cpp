#include "window/settingsdialog.h"

#include "window/dialogmessage.h"
#include "window/formarea.h"
#include "window/notifytests.h"
#include "window/operatorspage.h"
#include "window/settingsform.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int kWidth = 560; // px

// A page with the keys of some sections of the file.
struct PageRow {
    const char* title;
    const char* sections; // separated by blanks
    const char* help;     // below the fields
};

constexpr PageRow kPages[] = {
    {QT_TRANSLATE_NOOP("SettingsDialog", "&General"), "poll session window",
     QT_TRANSLATE_NOOP("SettingsDialog",
                       "A device may have an interval of its own; its dialog says which.")},
    {QT_TRANSLATE_NOOP("SettingsDialog", "&Thresholds"), "thresholds",
     QT_TRANSLATE_NOOP("SettingsDialog",
                       "From here on a live device is conspicuous in list, tiles and heading. Its "
                       "own alarms count whatever stands here.")},
    {QT_TRANSLATE_NOOP("SettingsDialog", "&Secrets"), "secrets",
     QT_TRANSLATE_NOOP("SettingsDialog",
                       "Passwords and keys of devices. Where another place is chosen, those that "
                       "the desk knows move there. The file is not encrypted: this user and the "
                       "administrator of this machine can read it.")},
    {QT_TRANSLATE_NOOP("SettingsDialog", "Histor&y"), "history",
     QT_TRANSLATE_NOOP("SettingsDialog",
                       "In a file of yours, or where it says: sqlite:/PATH or "
                       "postgresql://USER@HOST/DATABASE, the latter encrypted as chosen and "
                       "checked against the authorities in that file, or those of the system. "
                       "Followed from the next start on.")},
    {QT_TRANSLATE_NOOP("SettingsDialog", "&Notifications"), "notify collector",
     QT_TRANSLATE_NOOP(
         "SettingsDialog",
         "Power failures are told at once, anything else after it has held for one "
         "more poll. In quiet hours the desktop is told only what is critical. The "
         "command is a program with its arguments; what happened is in its "
         "environment (UPSDESK_TEXT and others). Metrics are served at a port of this "
         "machine, or at an address like 127.0.0.1:9199.")},
};

} // namespace

SettingsDialog::SettingsDialog(WatchList& list, QWidget* parent, const HashLimits& limits)
    : QDialog(parent)
    , m_list(list)
    , m_pages(new QTabWidget)
    , m_message(new DialogMessage)
{
    setObjectName(QStringLiteral("SettingsDialog"));
    setWindowTitle(tr("Settings"));
    m_pages->setObjectName(QStringLiteral("DeviceTabs")); // looks like the tabs of a device
    addPages(limits);
    m_pages->setUsesScrollButtons(false); // in every language all tabs are to be seen
    setMinimumWidth(kWidth);
    connect(m_pages, &QTabWidget::currentChanged, this,
            [this] { m_message->say(QString(), DialogMessage::Tone::Hint); });

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_pages, 1);
    column->addWidget(m_message);
    column->addWidget(buttons);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    fitScreen(this, sizeHint());
}

void SettingsDialog::addPages(const HashLimits& limits)
{
    for (const PageRow& row : kPages) {
        const QStringList sections = QString::fromLatin1(row.sections).split(QLatin1Char(' '));
        m_forms += new SettingsForm(sections, tr(row.help), m_list.config().settings());
        m_pages->addTab(new FormArea(m_forms.last()), tr(row.title));
    }
    auto* trials = new NotifyTests([this] { return shown().notify; });
    connect(trials, &NotifyTests::said, this, [this](const QString& text, bool isBad) {
        m_message->say(text, isBad ? DialogMessage::Tone::Bad : DialogMessage::Tone::Good);
    });
    m_forms.last()->addBelow(trials);
    auto* operators = new OperatorsPage(m_list, limits);
    connect(operators, &OperatorsPage::said, this, [this](const QString& text, bool isBad) {
        m_message->say(text, isBad ? DialogMessage::Tone::Bad : DialogMessage::Tone::Good);
    });
    m_pages->addTab(operators, tr("&Operators"));
}

void SettingsDialog::accept()
{
    const QString reason = save();
    if (reason.isEmpty())
        QDialog::accept();
    else
        m_message->say(reason, DialogMessage::Tone::Bad);
}

DeskSettings SettingsDialog::shown() const
{
    DeskSettings settings = m_list.config().settings();
    for (const SettingsForm* form : m_forms)
        form->readInto(settings);
    return settings;
}

// Only what was changed here is changed there: the file may have been edited meanwhile.
QString SettingsDialog::save()
{
    DeskSettings settings = m_list.config().settings();
    QStringList changes;
    for (const SettingsForm* form : qAsConst(m_forms))
        changes += form->readInto(settings);
    if (changes.isEmpty())
        return {};
    return m_list.edit(tr("Settings: %1").arg(changes.join(QStringLiteral(", "))),
                       [&settings](DeskConfig& config) { return config.setSettings(settings); });
}

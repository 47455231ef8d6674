#include "window/helpdialogs.h"

#include "config/deskconfig.h"
#include "window/windowstate.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMessageBox>
#include <QSysInfo>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

struct Tr {
    Q_DECLARE_TR_FUNCTIONS(HelpDialogs)
};

constexpr QSize kShortcutsSize(420, 460); // px

// Keys of the list of devices and of the window that stand in no menu with their effect.
constexpr struct {
    const char* what;
    const char* keys;
} kOtherKeys[] = {
    {QT_TRANSLATE_NOOP("HelpDialogs", "Back to all devices"), "Esc"},
    {QT_TRANSLATE_NOOP("HelpDialogs", "In the list: add, edit, remove a device"), "Ins, F2, Del"},
    {QT_TRANSLATE_NOOP("HelpDialogs", "In the list: move a device"), "Alt+Up, Alt+Down"},
    {QT_TRANSLATE_NOOP("HelpDialogs", "In the history: earlier, later; by a whole length"),
     "Left, Right; PgUp, PgDn"},
    {QT_TRANSLATE_NOOP("HelpDialogs", "In the history: less, more time"), "+, -"},
    {QT_TRANSLATE_NOOP("HelpDialogs", "In the history: the values of another row"),
     "Shift+Left, Shift+Right"},
    {QT_TRANSLATE_NOOP("HelpDialogs", "In the history: the oldest, the present"), "Home, End"},
};

void tell(QWidget* parent, const char* name, const QString& title, const QString& text)
{
    auto* box = new QMessageBox(QMessageBox::Information, title, text, QMessageBox::Close, parent);
    box->setObjectName(QLatin1String(name));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->open();
}

} // namespace

void showShortcuts(QWidget* parent, const QVector<QPair<QString, QString>>& ofMenus)
{
    auto rows = ofMenus;
    for (const auto& other : kOtherKeys)
        rows << qMakePair(Tr::tr(other.what), QString::fromLatin1(other.keys));

    auto* dialog = new QDialog(parent);
    dialog->setObjectName(QStringLiteral("ShortcutsDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(Tr::tr("Keyboard shortcuts"));
    dialog->resize(kShortcutsSize);
    auto* table = new QTableWidget(rows.size(), 2);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->verticalHeader()->hide();
    table->setHorizontalHeaderLabels({Tr::tr("What"), Tr::tr("Keys")});
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int row = 0; row < rows.size(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(rows.at(row).first));
        table->setItem(row, 1, new QTableWidgetItem(rows.at(row).second));
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto* column = new QVBoxLayout(dialog);
    column->addWidget(table);
    column->addWidget(buttons);
    dialog->open();
}

void showPlaces(QWidget* parent)
{
    tell(parent, "PlacesBox", Tr::tr("Where the configuration is"),
         Tr::tr("Devices, thresholds and operators stand in\n%1\n\n\"upsdesk check-config\" says "
                "what is wrong in it. How the window was left stands in\n%2")
             .arg(DeskConfig::defaultPath(), WindowState::defaultPath()));
}

void showAbout(QWidget* parent)
{
    tell(parent, "AboutBox", Tr::tr("About upsdesk"),
         Tr::tr("upsdesk %1\nWatches uninterruptible power supplies.\n\nQt %2\n%3 %4")
             .arg(QCoreApplication::applicationVersion(), QLatin1String(qVersion()),
                  QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture()));
}

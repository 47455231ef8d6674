#include "window/deskmenu.h"

#include "window/devicepage.h"
#include "window/language.h"

#include <QActionGroup>

namespace {

constexpr const char* kMenus[] = {
    QT_TRANSLATE_NOOP("DeskMenu", "&File"), QT_TRANSLATE_NOOP("DeskMenu", "&View"),
    QT_TRANSLATE_NOOP("DeskMenu", "&Device"), QT_TRANSLATE_NOOP("DeskMenu", "&Help")};

struct ItemRow {
    DeskMenu::Menu menu;
    DeskMenu::Item item;
    const char* name; // of the action
    const char* text;
    const char* shortcut;
    bool isSwitch;
    bool lineBefore;
    bool needsDevice;
};

constexpr ItemRow kItems[] = {
    {DeskMenu::FileMenu, DeskMenu::Quit, "Quit", QT_TRANSLATE_NOOP("DeskMenu", "&Quit"), "Ctrl+Q",
     false, true, false},
    {DeskMenu::ViewMenu, DeskMenu::AllDevices, "AllDevices",
     QT_TRANSLATE_NOOP("DeskMenu", "&All devices"), "Ctrl+0", false, false, false},
    {DeskMenu::ViewMenu, DeskMenu::Journal, "Journal", QT_TRANSLATE_NOOP("DeskMenu", "&Journal"),
     "Ctrl+J", false, false, false},
    {DeskMenu::ViewMenu, DeskMenu::Filter, "Filter",
     QT_TRANSLATE_NOOP("DeskMenu", "&Filter the list"), "Ctrl+F", false, false, false},
    {DeskMenu::ViewMenu, DeskMenu::ShowList, "ShowList",
     QT_TRANSLATE_NOOP("DeskMenu", "Device &list"), "F9", true, true, false},
    {DeskMenu::ViewMenu, DeskMenu::ShowEvents, "ShowEvents",
     QT_TRANSLATE_NOOP("DeskMenu", "&Events"), "Ctrl+E", true, false, false},
    {DeskMenu::ViewMenu, DeskMenu::FullScreen, "FullScreen",
     QT_TRANSLATE_NOOP("DeskMenu", "F&ull screen"), "F11", true, false, false},
    {DeskMenu::DeviceMenu, DeskMenu::OpenDevice, "OpenDevice",
     QT_TRANSLATE_NOOP("DeskMenu", "&Open"), "Ctrl+O", false, false, true},
    {DeskMenu::DeviceMenu, DeskMenu::TestConnection, "TestConnection",
     QT_TRANSLATE_NOOP("DeskMenu", "&Test connection"), "Ctrl+T", false, false, true},
    {DeskMenu::DeviceMenu, DeskMenu::PollNow, "PollNow", QT_TRANSLATE_NOOP("DeskMenu", "&Poll now"),
     "F5", false, false, true},
    {DeskMenu::DeviceMenu, DeskMenu::Commands, "Commands",
     QT_TRANSLATE_NOOP("DeskMenu", "&Commands"), "Ctrl+Shift+C", false, false, true},
    {DeskMenu::DeviceMenu, DeskMenu::Replay, "Replay", QT_TRANSLATE_NOOP("DeskMenu", "Rep&lay"),
     "Ctrl+R", false, false, true},
    {DeskMenu::DeviceMenu, DeskMenu::Copy, "Copy", QT_TRANSLATE_NOOP("DeskMenu", "Cop&y values"),
     "Ctrl+C", false, true, false},
    {DeskMenu::HelpMenu, DeskMenu::Shortcuts, "Shortcuts",
     QT_TRANSLATE_NOOP("DeskMenu", "&Keyboard shortcuts"), "F1", false, false, false},
    {DeskMenu::HelpMenu, DeskMenu::Places, "Places",
     QT_TRANSLATE_NOOP("DeskMenu", "Where the &configuration is"), "", false, false, false},
    {DeskMenu::HelpMenu, DeskMenu::About, "About", QT_TRANSLATE_NOOP("DeskMenu", "&About upsdesk"),
     "", false, true, false},
};

constexpr struct {
    ThemeChoice choice;
    const char* text;
} kThemes[] = {
    {ThemeChoice::Light, QT_TRANSLATE_NOOP("DeskMenu", "&Light")},
    {ThemeChoice::Dark, QT_TRANSLATE_NOOP("DeskMenu", "&Dark")},
    {ThemeChoice::System, QT_TRANSLATE_NOOP("DeskMenu", "As the &system")},
};

// In the order of the menu.
constexpr LanguageChoice kLanguages[] = {LanguageChoice::System,  LanguageChoice::English,
                                         LanguageChoice::German,  LanguageChoice::French,
                                         LanguageChoice::Spanish, LanguageChoice::Chinese};

} // namespace

DeskMenu::DeskMenu(QWidget* parent)
    : QMenuBar(parent)
    , m_pages(new QActionGroup(this))
    , m_themes(new QActionGroup(this))
    , m_languages(new QActionGroup(this))
{
    for (int i = 0; i < static_cast<int>(std::size(kMenus)); ++i)
        m_menus.insert(static_cast<Menu>(i), addMenu(tr(kMenus[i])));
    addItems();
    addPages();
    addThemes();
    addLanguages();
}

void DeskMenu::addItems()
{
    for (const ItemRow& row : kItems) {
        QMenu* menu = m_menus.value(row.menu);
        if (row.lineBefore)
            menu->addSeparator();
        QAction* action = menu->addAction(tr(row.text));
        action->setObjectName(QLatin1String(row.name));
        action->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
        action->setCheckable(row.isSwitch);
        action->setEnabled(!row.needsDevice);
        m_actions.insert(row.item, action);
    }
}

void DeskMenu::addPages()
{
    QMenu* menu = m_menus.value(ViewMenu);
    QAction* line = menu->insertSeparator(action(ShowList));
    for (int i = 0; i < DevicePage::pages().size(); ++i) {
        auto* page = new QAction(DevicePage::tr(DevicePage::pages().at(i).title), m_pages);
        page->setCheckable(true);
        page->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(i + 1)));
        menu->insertAction(line, page);
        connect(page, &QAction::triggered, this, [this, i] { emit pageChosen(i); });
    }
    menu->insertSeparator(m_pages->actions().first());
    markPage(0);
}

void DeskMenu::addThemes()
{
    QMenu* menu = m_menus.value(ViewMenu);
    auto* themes = new QMenu(tr("&Theme"), menu);
    for (const auto& row : kThemes) {
        QAction* theme = m_themes->addAction(tr(row.text));
        theme->setCheckable(true);
        themes->addAction(theme);
        connect(theme, &QAction::triggered, this, [this, &row] { emit themeChosen(row.choice); });
    }
    menu->addSeparator();
    menu->addMenu(themes);
}

// Each by its own name, which those who look for it can read.
void DeskMenu::addLanguages()
{
    QMenu* menu = m_menus.value(ViewMenu);
    auto* languages = new QMenu(tr("Lan&guage"), menu);
    for (LanguageChoice choice : kLanguages) {
        const char* name = language::nameOf(choice);
        QAction* item =
            m_languages->addAction(name ? QString::fromUtf8(name) : tr("As the &system"));
        item->setCheckable(true);
        languages->addAction(item);
        connect(item, &QAction::triggered, this, [this, choice] { emit languageChosen(choice); });
    }
    menu->addMenu(languages);
}

void DeskMenu::addFirst(Menu menu, const QList<QAction*>& actions)
{
    QMenu* target = m_menus.value(menu);
    QAction* first = target->actions().value(0);
    for (QAction* action : actions)
        target->insertAction(first, action ? action : target->insertSeparator(first));
}

void DeskMenu::markPage(int page)
{
    if (QAction* action = m_pages->actions().value(page))
        action->setChecked(true);
}

void DeskMenu::markTheme(ThemeChoice choice)
{
    for (int i = 0; i < static_cast<int>(std::size(kThemes)); ++i)
        if (kThemes[i].choice == choice)
            m_themes->actions().at(i)->setChecked(true);
}

void DeskMenu::markLanguage(LanguageChoice choice)
{
    for (int i = 0; i < static_cast<int>(std::size(kLanguages)); ++i)
        if (kLanguages[i] == choice)
            m_languages->actions().at(i)->setChecked(true);
}

void DeskMenu::enableDeviceItems(bool on)
{
    for (const ItemRow& row : kItems)
        if (row.needsDevice)
            action(row.item)->setEnabled(on);
}

QVector<QPair<QString, QString>> DeskMenu::shortcuts() const
{
    QVector<QPair<QString, QString>> rows;
    for (const QMenu* menu : m_menus)
        for (const QAction* action : menu->actions())
            if (!action->shortcut().isEmpty())
                rows << qMakePair(action->text().remove(QLatin1Char('&')),
                                  action->shortcut().toString(QKeySequence::NativeText));
    return rows;
}

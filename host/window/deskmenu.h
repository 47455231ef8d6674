#ifndef DESKMENU_H
#define DESKMENU_H

// The menu bar: every item with its shortcut, in one table. What an item does is its user's.
// May touch: Qt Widgets, the titles of device pages, the names of themes and languages.

#include "config/desksettings.h"

#include <QMap>
#include <QMenuBar>

class QActionGroup;

class DeskMenu : public QMenuBar
{
    Q_OBJECT

public:
    enum Menu { FileMenu, ViewMenu, DeviceMenu, HelpMenu };
    enum Item {
        Quit,
        AllDevices,
        Journal,
        Filter,
        ShowList,
        ShowEvents,
        FullScreen,
        OpenDevice,
        TestConnection,
        PollNow,
        Commands,
        Replay,
        Copy,
        Shortcuts,
        Places,
        About
    };

    explicit DeskMenu(QWidget* parent = nullptr);

    QAction* action(Item item) const { return m_actions.value(item); }
    // Puts further actions first into a menu; a null one is a line.
    void addFirst(Menu menu, const QList<QAction*>& actions);

    // Which of DevicePage::pages(), which theme and language is marked; choosing is signalled.
    void markPage(int page);
    void markTheme(ThemeChoice choice);
    void markLanguage(LanguageChoice choice);
    void enableDeviceItems(bool on);

    // All items that have a shortcut, as "Find devices", "Ctrl+F".
    QVector<QPair<QString, QString>> shortcuts() const;

signals:
    void pageChosen(int page);
    void themeChosen(ThemeChoice choice);
    void languageChosen(LanguageChoice choice);

private:
    void addItems();
    void addPages();
    void addThemes();
    void addLanguages();

    QMap<Menu, QMenu*> m_menus;
    QMap<Item, QAction*> m_actions;
    QActionGroup* m_pages;
    QActionGroup* m_themes;
    QActionGroup* m_languages;
};

#endif // DESKMENU_H

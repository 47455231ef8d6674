#ifndef HELPDIALOGS_H
#define HELPDIALOGS_H

// What the Help menu says: keyboard shortcuts, versions, where files lie. None waits.
// May touch: Qt Widgets, the paths of configuration and window state.

#include <QPair>
#include <QString>
#include <QVector>

class QWidget;

// What stands in the menus, as "Poll now", "F5"; keys that work elsewhere are added.
void showShortcuts(QWidget* parent, const QVector<QPair<QString, QString>>& ofMenus);
void showPlaces(QWidget* parent);
void showAbout(QWidget* parent);

#endif // HELPDIALOGS_H

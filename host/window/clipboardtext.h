#ifndef CLIPBOARDTEXT_H
#define CLIPBOARDTEXT_H

// What is on show as text for the clipboard: rows by line ends, columns by tabs.
// May touch: Qt Widgets, the names that the library gives its labels.

#include <QString>

class QAbstractItemView;
class QWidget;

// The selected cells of a table or list; devices with their condition and age.
QString selectedText(const QAbstractItemView* view);
// All names and values that can be seen on a device's page.
QString shownValues(const QWidget* page);

#endif // CLIPBOARDTEXT_H

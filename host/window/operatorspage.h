#ifndef OPERATORSPAGE_H
#define OPERATORSPAGE_H

// Who may log in at this desk: added, changed and removed one by one, each kept at once.
// May touch: the watch list's configuration, operators' rules and hashes.

#include "fleet/watchlist.h"
#include "private/passwordhash.h"

#include <QWidget>

class QPushButton;
class QTreeWidget;

class OperatorsPage : public QWidget
{
    Q_OBJECT

public:
    // The list must outlive the page.
    OperatorsPage(WatchList& list, const HashLimits& limits, QWidget* parent = nullptr);

signals:
    // What has become of a change; plain text.
    void said(const QString& text, bool isBad);

private:
    void layOut();
    void refresh();
    void openDialog(const OperatorAccount& account);
    void remove();
    QString keep(const QString& what, const WatchList::Edit& edit);
    OperatorAccount current() const; // without a name: none is chosen

    WatchList& m_list;
    const HashLimits m_limits;
    QTreeWidget* m_table;
    QPushButton* m_change;
    QPushButton* m_remove;
};

#endif // OPERATORSPAGE_H

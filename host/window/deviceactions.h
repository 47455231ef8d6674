#ifndef DEVICEACTIONS_H
#define DEVICEACTIONS_H

// What an operator can do with the list of devices: add, edit, remove, move up and down.
// May touch: the fleet, the watch list, connectors by their base class.

#include "fleet/watchlist.h"
#include "window/operatorgate.h"

#include <QList>
#include <QPointer>

class QAction;
class QWidget;

class DeviceActions : public QObject
{
    Q_OBJECT

public:
    // All must outlive the actions; the window owns them and is the parent of the dialogs.
    // Whoever may not change the list is asked to log in first.
    DeviceActions(Fleet& fleet, WatchList& list, const Fleet::ConnectorMaker& maker,
                  OperatorSession& session, QWidget* window);

    // The devices are others' to change: from here on all of it is out of reach.
    void lock();
    // What edit, remove and move act on; null: nothing. Follows the device when it is replaced.
    void setCurrent(Device* device);
    Device* current() const { return m_current; }

    QAction* addAction() const { return m_add; }
    QAction* addSeveralAction() const { return m_addSeveral; }
    QAction* editAction() const { return m_edit; }
    QAction* removeAction() const { return m_remove; }
    QAction* moveUpAction() const { return m_moveUp; }
    QAction* moveDownAction() const { return m_moveDown; }
    // For a context menu. Shortcuts work in the widget that the actions are added to.
    QList<QAction*> actions() const { return {m_add, m_edit, m_remove, m_moveUp, m_moveDown}; }
    // A row of buttons for the same.
    QWidget* makeButtons() const;

    // None waits for the operator.
    void add();
    void addSeveral();
    void edit();
    void remove();

signals:
    // Added, changed or moved: to be shown and selected.
    void chosen(Device* device);
    // Why something that has no dialog was not done; plain text.
    void refused(const QString& reason);

private:
    QAction* makeAction(const QString& text, const char* name, const QKeySequence& shortcut,
                        const std::function<void()>& act);
    QStringList otherNames(const QString& name) const;
    void openDialog(const DeviceSettings& device,
                    const std::function<QString(const DeviceSettings&)>& save);
    void move(int step);
    void conclude(const QString& reason, Device* device);
    void refresh();

    Fleet& m_fleet;
    WatchList& m_list;
    const Fleet::ConnectorMaker m_maker;
    OperatorGate* m_gate;
    QWidget* m_window;
    QPointer<Device> m_current;
    bool m_isLocked = false;
    int m_lostIndex = -1; // where the current device was when it went
    QAction* m_add;
    QAction* m_addSeveral;
    QAction* m_edit;
    QAction* m_remove;
    QAction* m_moveUp;
    QAction* m_moveDown;
};

#endif // DEVICEACTIONS_H

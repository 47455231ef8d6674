#ifndef PAGESTACK_H
#define PAGESTACK_H

// The overview and the pages of the devices that were looked at last.
// May touch: device pages, the command desk, the history's reader.

#include "fleet/commanddesk.h"

#include <QList>
#include <QPointer>
#include <QStackedWidget>
#include <QTimer>

class DevicePage;
class HistoryReader;

class PageStack : public QStackedWidget
{
    Q_OBJECT

public:
    static constexpr int kMostPages = 8; // the one that was left longest ago goes first

    PageStack(CommandDesk& desk, QWidget* overview, QWidget* parent = nullptr);

    void showOverview();
    // At the page of DevicePage::pages() that was on show last, for whatever device.
    void showDevice(Device* device);
    // Null while the overview is on show.
    DevicePage* current() const;
    // The device is about to go. True: it was the one on show.
    bool forget(const Device* device);
    const QList<DevicePage*>& kept() const { return m_kept; } // the latest first

    // For the pages that are there and those to come; null: there is none.
    void setHistory(HistoryReader* reader);
    void setPage(int page);
    int page() const { return m_page; }

signals:
    void pageChanged(int page);

private:
    DevicePage* pageOf(Device* device);
    void dropOldest();

    CommandDesk& m_desk;
    QWidget* m_overview;
    QPointer<HistoryReader> m_history;
    QList<DevicePage*> m_kept;
    QTimer m_dropTimer; // taking a page apart costs as much as a paint: never in the same step
    int m_page = 0;
};

#endif // PAGESTACK_H

#include "window/pagestack.h"

#include "history/historyreader.h"
#include "window/devicepage.h"

#include <algorithm>

PageStack::PageStack(CommandDesk& desk, QWidget* overview, QWidget* parent)
    : QStackedWidget(parent)
    , m_desk(desk)
    , m_overview(overview)
{
    addWidget(overview);
    m_dropTimer.setSingleShot(true);
    m_dropTimer.setInterval(0);
    connect(&m_dropTimer, &QTimer::timeout, this, &PageStack::dropOldest);
}

void PageStack::showOverview()
{
    setCurrentWidget(m_overview);
}

DevicePage* PageStack::current() const
{
    return qobject_cast<DevicePage*>(currentWidget());
}

void PageStack::showDevice(Device* device)
{
    DevicePage* page = pageOf(device);
    m_kept.removeOne(page);
    m_kept.prepend(page);
    page->showPage(m_page);
    setCurrentWidget(page);
    if (m_kept.size() > kMostPages)
        m_dropTimer.start();
}

void PageStack::dropOldest()
{
    if (m_kept.size() > kMostPages)
        delete m_kept.takeLast();
    if (m_kept.size() > kMostPages)
        m_dropTimer.start();
}

DevicePage* PageStack::pageOf(Device* device)
{
    for (DevicePage* page : qAsConst(m_kept))
        if (&page->device() == device)
            return page;
    auto* page = new DevicePage(*device, m_desk);
    page->setHistory(m_history);
    page->showPage(m_page);
    connect(page, &DevicePage::pageChanged, this, [this, page](int number) {
        if (page != currentWidget())
            return;
        m_page = number;
        emit pageChanged(number);
    });
    addWidget(page);
    return page;
}

bool PageStack::forget(const Device* device)
{
    const bool shown = current() && &current()->device() == device;
    const auto page = std::find_if(m_kept.begin(), m_kept.end(), [device](const DevicePage* kept) {
        return &kept->device() == device;
    });
    if (page != m_kept.end()) {
        delete *page;
        m_kept.erase(page);
    }
    return shown;
}

void PageStack::setHistory(HistoryReader* reader)
{
    m_history = reader;
    for (DevicePage* page : qAsConst(m_kept))
        page->setHistory(reader);
}

void PageStack::setPage(int page)
{
    m_page = std::clamp(page, 0, DevicePage::pages().size() - 1);
    if (DevicePage* shown = current())
        shown->showPage(m_page);
    emit pageChanged(m_page);
}

#include "window/eventdock.h"

#include "fleet/eventlog.h"
#include "window/eventlistmodel.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QTreeView>

namespace {

constexpr int kColumnWidths[] = {140, 90, 160, 300, 150}; // px

} // namespace

EventDock::EventDock(EventLog& log, QWidget* parent)
    : QDockWidget(tr("Events"), parent)
    , m_log(log)
{
    setObjectName(QStringLiteral("EventDock"));
    setFeatures(DockWidgetClosable | DockWidgetMovable);
    auto* view = new QTreeView;
    view->setObjectName(QStringLiteral("EventList"));
    view->setModel(new EventListModel(m_log, view));
    view->setAccessibleName(tr("Events"));
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->header()->setStretchLastSection(true);
    for (int column = 0; column < static_cast<int>(std::size(kColumnWidths)); ++column)
        view->setColumnWidth(column, kColumnWidths[column]);
    setWidget(view);
    hide();
    connect(&m_log, &EventLog::appended, this, [this] {
        if (m_isWanted)
            comeUp();
    });
}

void EventDock::setWanted(bool wanted)
{
    const bool changed = wanted != m_isWanted;
    m_isWanted = wanted;
    if (wanted)
        comeUp();
    else
        hide();
    if (changed)
        emit wantedChanged(wanted);
}

void EventDock::comeUp()
{
    if (!isHidden())
        return;
    show();
    emit cameUp();
}

void EventDock::closeEvent(QCloseEvent* event)
{
    QDockWidget::closeEvent(event);
    setWanted(false);
}

#include "mainwindow.h"

#include "window/devicelistmodel.h"
#include "window/devicepage.h"
#include "window/devicerowdelegate.h"
#include "window/devicesortmodel.h"
#include "window/eventlistmodel.h"
#include "window/resultbanner.h"

#include <QCheckBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>

namespace
{

constexpr QSize kFirstSize(1240, 900);
constexpr int kSideWidth = 290;
constexpr int kEventListHeight = 150;

} // namespace

MainWindow::MainWindow(Fleet& fleet, CommandDesk& desk, EventLog& log, QWidget* parent)
    : QMainWindow(parent)
    , m_fleet(fleet)
    , m_desk(desk)
    , m_model(new DeviceListModel(fleet, this))
    , m_sorted(new DeviceSortModel(this))
    , m_list(new QListView)
    , m_counts(new QLabel)
    , m_pages(new QStackedWidget)
    , m_banner(new ResultBanner)
{
    setWindowTitle(tr("upsdesk"));
    resize(kFirstSize);
    m_sorted->setSourceModel(m_model);

    auto* right = new QWidget;
    auto* column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_pages, 1);
    column->addWidget(m_banner);

    auto* splitter = new QSplitter;
    splitter->addWidget(makeSidePanel());
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kSideWidth, kFirstSize.width() - kSideWidth});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);

    auto* dock = new QDockWidget(tr("Events"));
    dock->setObjectName(QStringLiteral("EventDock"));
    dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    dock->setWidget(makeEventList(log));
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    resizeDocks({dock}, {kEventListHeight}, Qt::Vertical);
    dock->hide(); // shows itself with the first event
    connect(&log, &EventLog::appended, dock, &QWidget::show);

    connect(&fleet, &Fleet::devicePolled, this, [this](Device* device) {
        DevicePage* page = currentPage();
        if (page && &page->device() == device && page->isVisible())
            page->refresh();
    });
    connect(&fleet, &Fleet::ticked, this, [this] {
        m_list->viewport()->update(); // ages
        if (DevicePage* page = currentPage())
            page->refreshAge();
    });
    connect(&fleet, &Fleet::deviceAboutToBeRemoved, this,
            [this](int index) { forget(m_fleet.at(index)); });
    connect(&desk, &CommandDesk::finished, this,
            [this](const QString& device, const QString& command, const QString& outcome,
                   const QString& message, bool isBad) {
                const QString head = QStringLiteral("%1: %2: %3").arg(device, command, outcome);
                m_banner->say(message.isEmpty() ? head : head + QStringLiteral(". ") + message,
                              isBad);
            });
    connect(m_model, &DeviceListModel::refreshed, this,
            [this] { m_counts->setText(m_model->countsText()); });
}

QWidget* MainWindow::makeSidePanel()
{
    auto* panel = new QWidget;
    panel->setObjectName(QStringLiteral("SidePanel"));
    panel->setMinimumWidth(200);

    auto* filter = new QLineEdit;
    filter->setPlaceholderText(tr("Filter by name, address or state"));
    filter->setClearButtonEnabled(true);
    connect(filter, &QLineEdit::textChanged, m_sorted,
            &QSortFilterProxyModel::setFilterFixedString);

    auto* worstFirst = new QCheckBox(tr("Worst first"));
    connect(worstFirst, &QCheckBox::toggled, m_sorted, &DeviceSortModel::setWorstFirst);

    m_list->setObjectName(QStringLiteral("DeviceList"));
    m_list->setAccessibleName(tr("Devices"));
    m_list->setModel(m_sorted);
    m_list->setItemDelegate(new DeviceRowDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (index.isValid())
                    openDevice(DeviceListModel::deviceAt(index));
            });

    m_counts->setObjectName(QStringLiteral("CountsLabel"));
    m_counts->setWordWrap(true);

    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 8, 0, 8);
    auto* head = new QVBoxLayout;
    head->setContentsMargins(8, 0, 8, 0);
    head->addWidget(filter);
    head->addWidget(worstFirst);
    column->addLayout(head);
    column->addWidget(m_list, 1);
    auto* foot = new QVBoxLayout;
    foot->setContentsMargins(8, 0, 8, 0);
    foot->addWidget(m_counts);
    column->addLayout(foot);
    return panel;
}

QWidget* MainWindow::makeEventList(EventLog& log)
{
    auto* view = new QTreeView;
    view->setModel(new EventListModel(log, view));
    view->setAccessibleName(tr("Events"));
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAlternatingRowColors(true);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->header()->setStretchLastSection(true);
    constexpr int widths[] = {140, 90, 160, 190, 50, 60, 150};
    for (int column = 0; column < static_cast<int>(std::size(widths)); ++column)
        view->setColumnWidth(column, widths[column]);
    return view;
}

DevicePage* MainWindow::currentPage() const
{
    return qobject_cast<DevicePage*>(m_pages->currentWidget());
}

void MainWindow::openDevice(Device* device)
{
    DevicePage*& page = m_pageOf[device];
    if (!page) {
        page = new DevicePage(*device, m_desk);
        m_pages->addWidget(page);
    }
    m_pages->setCurrentWidget(page);
    const int row = m_fleet.indexOf(device);
    const QModelIndex shown = m_sorted->mapFromSource(m_model->index(row));
    if (shown.isValid() && shown != m_list->currentIndex())
        m_list->setCurrentIndex(shown);
    setWindowTitle(tr("%1 - upsdesk").arg(device->name()));
}

void MainWindow::refreshOperator()
{
    for (DevicePage* page : qAsConst(m_pageOf))
        page->refreshOperator();
}

void MainWindow::forget(const Device* device)
{
    delete m_pageOf.take(device);
}

#include "window/sidepanel.h"

#include "window/deviceactions.h"
#include "window/devicelistmodel.h"
#include "window/devicerowdelegate.h"
#include "window/devicesortmodel.h"
#include "window/operatorbar.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// px
constexpr int kLeastWidth = 200;
constexpr int kMargin = 8;

} // namespace

SidePanel::SidePanel(DeviceListModel& model, OperatorSession& session, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_sorted(new DeviceSortModel(this))
    , m_list(new QListView)
    , m_filter(new QLineEdit)
    , m_worstFirst(new QCheckBox(tr("&Worst first")))
    , m_counts(new QLabel)
    , m_column(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("SidePanel"));
    m_sorted->setSourceModel(&model);
    setUpList();
    m_column->setContentsMargins(0, kMargin, 0, kMargin);
    m_column->addWidget(makeHead());
    m_column->addWidget(m_list, 1);
    m_column->addWidget(makeFoot(session));
    m_column->addStrut(kLeastWidth); // or what its buttons need
}

QWidget* SidePanel::makeHead()
{
    auto* overview = new QPushButton(tr("&All devices"));
    overview->setObjectName(QStringLiteral("OverviewButton"));
    connect(overview, &QPushButton::clicked, this, &SidePanel::overviewWanted);

    m_filter->setObjectName(QStringLiteral("FilterEdit"));
    m_filter->setAccessibleName(tr("Filter"));
    m_filter->setPlaceholderText(tr("Filter by name, address or state"));
    m_filter->setClearButtonEnabled(true);
    connect(m_filter, &QLineEdit::textChanged, m_sorted,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_filter, &QLineEdit::textChanged, this, &SidePanel::filterChanged);
    connect(m_filter, &QLineEdit::returnPressed, m_list,
            [this] { m_list->setCurrentIndex(m_sorted->index(0, 0)); });
    m_worstFirst->setObjectName(QStringLiteral("WorstFirstBox"));
    connect(m_worstFirst, &QCheckBox::toggled, this, [this](bool on) {
        m_sorted->setOrder(on ? DeviceSortModel::Order::WorstFirst
                              : DeviceSortModel::Order::Groups);
        emit worstFirstChanged(on);
    });

    auto* head = new QWidget;
    auto* column = new QVBoxLayout(head);
    column->setContentsMargins(kMargin, 0, kMargin, 0);
    column->addWidget(overview);
    column->addWidget(m_filter);
    column->addWidget(m_worstFirst);
    return head;
}

QWidget* SidePanel::makeFoot(OperatorSession& session)
{
    m_counts->setObjectName(QStringLiteral("CountsLabel"));
    m_counts->setWordWrap(true);
    m_counts->setText(m_model.countsText());
    connect(&m_model, &DeviceListModel::refreshed, this,
            [this] { m_counts->setText(m_model.countsText()); });
    auto* who = new OperatorBar(session);
    connect(who, &OperatorBar::loginWanted, this, &SidePanel::loginWanted);

    auto* foot = new QWidget;
    auto* column = new QVBoxLayout(foot);
    column->setContentsMargins(kMargin, 0, kMargin, 0);
    column->addWidget(m_counts);
    column->addWidget(who);
    return foot;
}

void SidePanel::setUpList()
{
    m_list->setObjectName(QStringLiteral("DeviceList"));
    m_list->setAccessibleName(tr("Devices"));
    m_list->setModel(m_sorted);
    m_list->setItemDelegate(new DeviceRowDelegate(m_list));
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Not the current row: Tab makes the first one current, and would open what nobody chose.
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { emit deviceSelected(selected()); });
    connect(m_list, &QListView::activated, m_list->selectionModel(),
            [this](const QModelIndex& row) {
                m_list->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect);
            });
}

void SidePanel::setActions(DeviceActions* actions)
{
    constexpr int kBelowTheList = 2;
    QWidget* buttons = actions->makeButtons();
    m_column->insertWidget(kBelowTheList, buttons);
    QWidget* before = m_list;
    for (auto* button : buttons->findChildren<QToolButton*>()) {
        setTabOrder(before, button);
        before = button;
    }
    m_list->addActions(actions->actions());
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
}

Device* SidePanel::selected() const
{
    const QModelIndexList chosen = m_list->selectionModel()->selectedIndexes();
    return chosen.isEmpty() ? nullptr : DeviceListModel::deviceAt(chosen.first());
}

void SidePanel::select(Device* device)
{
    const QModelIndex shown = m_sorted->mapFromSource(m_model.indexOf(device));
    if (shown != m_list->currentIndex())
        m_list->setCurrentIndex(shown);
    if (!shown.isValid())
        m_list->clearSelection();
}

void SidePanel::findByText()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

void SidePanel::refreshAges()
{
    m_list->viewport()->update();
}

void SidePanel::setWorstFirst(bool on)
{
    m_worstFirst->setChecked(on);
}

bool SidePanel::isWorstFirst() const
{
    return m_worstFirst->isChecked();
}

#include "window/operatorspage.h"

#include "operators/operatoredits.h"
#include "window/confirmbox.h"
#include "window/operatordialog.h"
#include "window/plainlabel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

OperatorsPage::OperatorsPage(WatchList& list, const HashLimits& limits, QWidget* parent)
    : QWidget(parent)
    , m_list(list)
    , m_limits(limits)
    , m_table(new QTreeWidget)
    , m_change(new QPushButton(tr("&Change\u2026")))
    , m_remove(new QPushButton(tr("&Remove\u2026")))
{
    layOut();
    connect(m_change, &QPushButton::clicked, this, [this] { openDialog(current()); });
    connect(m_table, &QTreeWidget::itemActivated, this, [this] { openDialog(current()); });
    connect(m_remove, &QPushButton::clicked, this, &OperatorsPage::remove);
    connect(m_table, &QTreeWidget::itemSelectionChanged, this, [this] {
        for (QPushButton* button : {m_change, m_remove})
            button->setEnabled(!current().name.isEmpty());
    });
    connect(&list, &WatchList::changed, this, &OperatorsPage::refresh);
    refresh();
}

void OperatorsPage::layOut()
{
    m_table->setObjectName(QStringLiteral("OperatorTable"));
    m_table->setAccessibleName(tr("Operators"));
    m_table->setHeaderLabels({tr("Name"), tr("Level")});
    m_table->setRootIsDecorated(false);
    m_table->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_table->header()->setStretchLastSection(false);
    auto* note =
        new PlainLabel(tr("While there is no operator, everybody may change the desk and nobody "
                          "may command a real UPS. Changes here are kept at once."));
    auto* add = new QPushButton(tr("&Add\u2026"));
    add->setObjectName(QStringLiteral("OperatorAdd"));
    m_change->setObjectName(QStringLiteral("OperatorChange"));
    m_remove->setObjectName(QStringLiteral("OperatorRemove"));

    auto* row = new QHBoxLayout;
    for (QPushButton* button : {add, m_change, m_remove}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    row->addStretch(1);
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_table, 1);
    column->addLayout(row);
    column->addWidget(note);

    connect(add, &QPushButton::clicked, this, [this] { openDialog({}); });
}

void OperatorsPage::refresh()
{
    const QString chosen = current().name;
    m_table->clear();
    for (const OperatorAccount& account : m_list.config().operators()) {
        auto* item = new QTreeWidgetItem(m_table, {account.name, QString::number(account.level)});
        item->setTextAlignment(1, Qt::AlignRight);
        item->setSelected(account.name == chosen);
    }
    emit m_table->itemSelectionChanged();
}

OperatorAccount OperatorsPage::current() const
{
    const QList<QTreeWidgetItem*> chosen = m_table->selectedItems();
    for (const OperatorAccount& account : m_list.config().operators())
        if (!chosen.isEmpty() && account.name == chosen.first()->text(0))
            return account;
    return {};
}

void OperatorsPage::openDialog(const OperatorAccount& account)
{
    QStringList taken;
    for (const OperatorAccount& other : m_list.config().operators())
        if (other.name != account.name)
            taken << other.name;
    const bool isNew = account.name.isEmpty();
    auto* dialog = new OperatorDialog(
        account, taken, m_limits,
        [this, isNew](const OperatorAccount& kept) {
            const QString what =
                (isNew ? tr("Operator %1 added, level %2") : tr("Operator %1 changed, level %2"))
                    .arg(kept.name)
                    .arg(kept.level);
            return keep(what, [&kept](DeskConfig& config) { return putOperator(config, kept); });
        },
        this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void OperatorsPage::remove()
{
    const QString name = current().name;
    ConfirmBox::ask({tr("Remove an operator"), tr("Remove the operator \"%1\"?").arg(name),
                     tr("Who is logged in by this name is logged out."), tr("&Remove")},
                    this, [this, name](bool yes) {
                        if (!yes)
                            return;
                        const QString reason =
                            keep(tr("Operator %1 removed").arg(name), [&name](DeskConfig& config) {
                                return removeOperator(config, name);
                            });
                        if (!reason.isEmpty())
                            emit said(reason, true);
                    });
}

QString OperatorsPage::keep(const QString& what, const WatchList::Edit& edit)
{
    const QString reason = m_list.edit(what, edit);
    if (reason.isEmpty())
        emit said(what + QLatin1Char('.'), false);
    return reason;
}

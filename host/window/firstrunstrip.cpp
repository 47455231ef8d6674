#include "window/firstrunstrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

FirstRunStrip::FirstRunStrip(Fleet& fleet, QWidget* parent)
    : QFrame(parent)
    , m_fleet(fleet)
    , m_text(new QLabel)
    , m_add(new QPushButton(tr("Add your &UPS\u2026")))
{
    setObjectName(QStringLiteral("FirstRunStrip"));
    m_text->setObjectName(QStringLiteral("FirstRunText"));
    m_text->setWordWrap(true);
    m_add->setObjectName(QStringLiteral("btnBlue")); // the style sheets' primary button
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 6, 16, 6);
    row->addWidget(m_text, 1);
    row->addWidget(m_add);
    hide();

    connect(m_add, &QPushButton::clicked, this, &FirstRunStrip::addWanted);
    // Who has just added or removed a device is not done with it yet.
    for (auto happened : {&Fleet::deviceAdded, &Fleet::deviceRemoved, &Fleet::deviceReplaced})
        connect(&fleet, happened, this, &FirstRunStrip::follow, Qt::QueuedConnection);
}

void FirstRunStrip::setSimulation(Device* device)
{
    m_simulation = device;
    m_isFirstRun = true;
    follow();
}

void FirstRunStrip::offerNothing()
{
    m_add->hide();
}

void FirstRunStrip::retire()
{
    m_isRetired = true;
    hide();
}

void FirstRunStrip::follow()
{
    bool real = false;
    for (int i = 0; i < m_fleet.count(); ++i)
        real |= !m_fleet.at(i)->isSimulated();
    if (real && m_simulation)
        m_fleet.remove(m_fleet.indexOf(m_simulation));
    m_isFirstRun = m_isFirstRun && !real;
    const bool empty = m_fleet.count() == 0;
    m_text->setText(empty ? tr("There is no device yet - add your UPS")
                          : tr("This is a simulation - add your UPS"));
    setVisible(!m_isRetired && (empty || (m_isFirstRun && m_simulation)));
}

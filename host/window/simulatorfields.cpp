#include "window/simulatorfields.h"

#include "connectors/simulator/simulatorscenarios.h"

#include <QComboBox>
#include <QFormLayout>

SimulatorFields::SimulatorFields(QWidget* parent)
    : AddressFields(parent)
    , m_scenario(new QComboBox)
{
    m_scenario->setObjectName(QStringLiteral("ScenarioBox"));
    for (const ScenarioInfo& info : simulatorScenarios())
        m_scenario->addItem(info.description, info.name);
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("Scena&rio"), m_scenario);
    connect(m_scenario, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &AddressFields::edited);
}

void SimulatorFields::showAddress(const DeviceAddress& address)
{
    // Without regard to case, as the simulator takes it.
    int index = m_scenario->count() - 1;
    while (index >= 0 && m_scenario->itemData(index).toString().compare(address.scenario,
                                                                        Qt::CaseInsensitive) != 0)
        --index;
    m_scenario->setCurrentIndex(index);
}

DeviceAddress SimulatorFields::address() const
{
    DeviceAddress address;
    address.scheme = scheme();
    address.scenario = m_scenario->currentData().toString();
    return address;
}

QString SimulatorFields::error() const
{
    return m_scenario->currentIndex() < 0 ? tr("The simulator has no such scenario; choose one.")
                                          : QString();
}

QString SimulatorFields::proposedName() const
{
    const QString scenario = m_scenario->currentData().toString();
    return scenario.isEmpty() ? tr("Simulator") : tr("Simulator %1").arg(scenario);
}

#include "window/deviceadvanced.h"

#include "config/configkeys.h"
#include "window/scaletable.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>

namespace {

constexpr int kScaleTableHeight = 150; // px

struct NumberRow {
    const char* key;
    int DeviceSettings::*field;
    const char* label;
    bool snmpOnly;
};

constexpr NumberRow kNumbers[] = {
    {"timeout", &DeviceSettings::timeout, QT_TRANSLATE_NOOP("DeviceAdvanced", "Answer &within"),
     false},
    {"retries", &DeviceSettings::retries, QT_TRANSLATE_NOOP("DeviceAdvanced", "&Retries"), true},
    {"shutdown-delay", &DeviceSettings::shutdownDelay,
     QT_TRANSLATE_NOOP("DeviceAdvanced", "&Shutdown delay"), false},
    {"restart-duration", &DeviceSettings::restartDuration,
     QT_TRANSLATE_NOOP("DeviceAdvanced", "Off d&uring a restart"), false},
};

} // namespace

DeviceAdvanced::DeviceAdvanced(QWidget* parent)
    : QWidget(parent)
    , m_form(new QFormLayout(this))
    , m_wholeUps(new QCheckBox(tr("Shut down the w&hole UPS, not its output alone")))
    , m_scales(new ScaleTable)
{
    for (const NumberRow& row : kNumbers) {
        QSpinBox* field = makeNumberField(QLatin1String(row.key));
        m_form->addRow(tr(row.label), field);
        connect(field, QOverload<int>::of(&QSpinBox::valueChanged), this, &DeviceAdvanced::edited);
        m_numbers << field;
    }
    m_wholeUps->setObjectName(QStringLiteral("WholeUpsBox"));
    m_form->addRow(QString(), m_wholeUps);
    m_scales->setObjectName(QStringLiteral("ScaleTable"));
    m_scales->setMinimumHeight(kScaleTableHeight);
    m_scales->setToolTip(tr("For a device that is wrong by a power of ten; empty means 1"));
    m_form->addRow(tr("Correction &factors"), m_scales);
    connect(m_wholeUps, &QCheckBox::toggled, this, &DeviceAdvanced::edited);
    connect(m_scales, &ScaleTable::edited, this, &DeviceAdvanced::edited);
}

QSpinBox* DeviceAdvanced::makeNumberField(const QString& key)
{
    const ConfigType& type = deviceKeyType(key);
    auto* field = new QSpinBox;
    field->setObjectName(key);
    field->setRange(type.minimum, type.maximum);
    if (*type.unit)
        field->setSuffix(QLatin1Char(' ') + QString::fromUtf8(type.unit));
    return field;
}

void DeviceAdvanced::showSettings(const DeviceSettings& settings)
{
    for (int i = 0; i < m_numbers.size(); ++i)
        m_numbers.at(i)->setValue(settings.*kNumbers[i].field);
    m_wholeUps->setChecked(settings.shutdownWholeUps);
    m_scales->setScales(settings.scales);
}

void DeviceAdvanced::readSettings(DeviceSettings& settings) const
{
    for (int i = 0; i < m_numbers.size(); ++i)
        settings.*kNumbers[i].field = m_numbers.at(i)->value();
    settings.shutdownWholeUps = m_wholeUps->isChecked();
    settings.scales = m_scales->scales();
}

void DeviceAdvanced::showRowsOf(DeviceAddress::Scheme scheme)
{
    const bool snmp = scheme == DeviceAddress::Scheme::Snmp;
    for (int i = 0; i < m_numbers.size(); ++i) {
        const bool shown = snmp || !kNumbers[i].snmpOnly;
        m_numbers.at(i)->setVisible(shown);
        m_form->labelForField(m_numbers.at(i))->setVisible(shown);
    }
    m_wholeUps->setVisible(snmp);
}

QString DeviceAdvanced::error() const
{
    return m_scales->error();
}

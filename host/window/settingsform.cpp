#include "window/settingsform.h"

#include "window/plainlabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>

namespace {

QWidget* makeField(const ConfigType& type)
{
    switch (type.kind) {
    case ConfigType::Kind::Number: {
        auto* field = new QSpinBox;
        field->setRange(type.minimum, type.maximum);
        if (*type.unit)
            field->setSuffix(QLatin1Char(' ') + QString::fromUtf8(type.unit));
        return field;
    }
    case ConfigType::Kind::Switch:
        return new QCheckBox;
    case ConfigType::Kind::Choice: {
        auto* field = new QComboBox;
        for (const ConfigWord& word : type.words)
            field->addItem(configLabel(word.label));
        return field;
    }
    case ConfigType::Kind::Text:
        break;
    }
    auto* field = new QLineEdit;
    field->setMaxLength(type.maximum);
    return field;
}

// The property of the field that holds the key's value.
const char* valueProperty(const ConfigType& type)
{
    constexpr const char* properties[] = {"value", "checked", "currentIndex", "text"};
    return properties[static_cast<int>(type.kind)];
}

} // namespace

SettingsForm::SettingsForm(const QStringList& sections, const QString& help,
                           const DeskSettings& settings, QWidget* parent)
    : QWidget(parent)
{
    auto* form = new QFormLayout(this);
    for (const ConfigKey<DeskSettings>& key : deskKeys()) {
        if (!sections.contains(QLatin1String(key.section)) || !*key.label)
            continue; // without a label it is none of the window's
        QWidget* field = makeField(key.type);
        field->setObjectName(QLatin1String(key.name));
        const bool isText = key.type.kind == ConfigType::Kind::Text;
        field->setSizePolicy(isText ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                             QSizePolicy::Fixed);
        field->setProperty(valueProperty(key.type), key.get(settings));
        form->addRow(configLabel(key.label), field);
        m_rows += Row{&key, field, key.get(settings)};
    }
    form->addRow(new PlainLabel(help));
}

QStringList SettingsForm::readInto(DeskSettings& settings) const
{
    QStringList changes;
    for (const Row& row : m_rows) {
        const ConfigType& type = row.key->type;
        const QVariant value = row.field->property(valueProperty(type));
        if (value == row.shown)
            continue;
        row.key->set(settings, value);
        if (type.isPrivate) {
            changes += QLatin1String(row.key->name);
            continue;
        }
        changes += QStringLiteral("%1 %2 \u2192 %3 %4")
                       .arg(QLatin1String(row.key->name), type.format(row.shown),
                            type.format(value), QString::fromUtf8(type.unit))
                       .trimmed();
    }
    return changes;
}

void SettingsForm::addBelow(QWidget* widget)
{
    static_cast<QFormLayout*>(layout())->addRow(widget);
}

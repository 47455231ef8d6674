#ifndef SETTINGSFORM_H
#define SETTINGSFORM_H

// Fields for all keys of some sections of the configuration, made from the table of keys.
// May touch: Qt Widgets, the table of keys.

#include "config/configkeys.h"

#include <QVector>
#include <QWidget>

class SettingsForm : public QWidget
{
    Q_OBJECT

public:
    // help: below the fields, plain text.
    SettingsForm(const QStringList& sections, const QString& help, const DeskSettings& settings,
                 QWidget* parent = nullptr);

    // Puts what was changed in here into the settings and names it: "interval 5 -> 10 s".
    QStringList readInto(DeskSettings& settings) const;

    // Over the whole width, below the help.
    void addBelow(QWidget* widget);

private:
    struct Row {
        const ConfigKey<DeskSettings>* key;
        QWidget* field; // by its object name: the name of the key
        QVariant shown; // at the beginning
    };
    QVector<Row> m_rows;
};

#endif // SETTINGSFORM_H

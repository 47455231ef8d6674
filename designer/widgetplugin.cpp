#include "widgetplugin.h"

#include <QIcon>

WidgetPlugin::WidgetPlugin(const WidgetRow& row, QObject* parent)
    : QObject(parent)
    , m_row(row)
{}

QString WidgetPlugin::name() const
{
    return QLatin1String(m_row.className);
}

QString WidgetPlugin::group() const
{
    return QStringLiteral("devView");
}

QString WidgetPlugin::toolTip() const
{
    return QLatin1String(m_row.toolTip);
}

QString WidgetPlugin::whatsThis() const
{
    return QLatin1String(m_row.whatsThis);
}

QString WidgetPlugin::includeFile() const
{
    return QStringLiteral("devview/") + QLatin1String(m_row.header);
}

QIcon WidgetPlugin::icon() const
{
    return QIcon(QStringLiteral(":/devview/designer/") + QLatin1String(m_row.icon));
}

QString WidgetPlugin::domXml() const
{
    const QString objectName = name().left(1).toLower() + name().mid(1);
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%3</width><height>%4</height></rect></property>"
                          "</widget></ui>")
        .arg(name(), objectName)
        .arg(m_row.width)
        .arg(m_row.height);
}

QWidget* WidgetPlugin::createWidget(QWidget* parent)
{
    QWidget* widget = m_row.make(parent);
    if (m_isInEditor)
        m_row.fill(widget);
    return widget;
}

void WidgetPlugin::initialize(QDesignerFormEditorInterface* editor)
{
    m_isInEditor = editor;
}

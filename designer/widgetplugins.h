#ifndef WIDGETPLUGINS_H
#define WIDGETPLUGINS_H

// All widgets of the library for Qt Designer and QUiLoader: the plug-in's entry.
// May touch: Qt's interface for custom widgets, the library's public headers, the samples.

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

class WidgetPlugins : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit WidgetPlugins(QObject* parent = nullptr);

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return m_widgets; }

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

#endif // WIDGETPLUGINS_H

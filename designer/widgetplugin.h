#ifndef WIDGETPLUGIN_H
#define WIDGETPLUGIN_H

// One widget of the library as Qt Designer and QUiLoader see it.
// May touch: Qt's interface for custom widgets, the samples.

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// What is to be said of a widget. All texts are constants.
struct WidgetRow {
    const char* className;
    const char* header; // below devview/
    const char* icon;   // among the resources
    const char* toolTip;
    const char* whatsThis;
    int width; // px, of a widget that has just been dropped on a form
    int height;
    QWidget* (*make)(QWidget* parent);
    void (*fill)(QWidget* widget); // with a sample
};

class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    // row: one that stays.
    explicit WidgetPlugin(const WidgetRow& row, QObject* parent = nullptr);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QString domXml() const override;
    // With a sample of data in an editor, which alone calls initialize(); else as the class is.
    QWidget* createWidget(QWidget* parent) override;
    void initialize(QDesignerFormEditorInterface* editor) override;
    bool isInitialized() const override { return m_isInEditor; }

private:
    const WidgetRow& m_row;
    bool m_isInEditor = false;
};

#endif // WIDGETPLUGIN_H

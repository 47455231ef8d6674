// The library's widgets as a form brings them: in an application that loads it at run time, with
// what the form sets and nothing else; in an editor with a sample to look at.

#include "datachart.h"
#include "trendchart.h"

#include <QBuffer>
#include <QFile>
#include <QPluginLoader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QUiLoader>

namespace {

const QStringList kWidgets{"DataChart",         "DynamicChart",     "ThreeDynamicChart",
                           "RTSingleGraphForm", "RTThreeGraphForm", "ChartForm",
                           "RTDataForm",        "ChildForm"};

// How many colours a picture has: an empty ground has few.
int coloursOf(QWidget& widget)
{
    const QImage picture = widget.grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            colours << picture.pixel(x, y);
    return colours.size();
}

} // namespace

class TestDesignerPlugin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void formsAreLoaded();
    void formsSetProperties();
    void editorsShowSamples();

private:
    QUiLoader m_loader;
    QList<QDesignerCustomWidgetInterface*> m_plugins;
};

void TestDesignerPlugin::initTestCase()
{
    m_loader.addPluginPath(DESIGNER_PLUGINS);
    QPluginLoader loader(DESIGNER_PLUGIN_FILE);
    const auto* all = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    QVERIFY2(all, qPrintable(loader.errorString()));
    m_plugins = all->customWidgets();
    QCOMPARE(m_plugins.size(), kWidgets.size());
}

void TestDesignerPlugin::formsAreLoaded()
{
    for (const QString& name : kWidgets) {
        QVERIFY2(m_loader.availableWidgets().contains(name), qPrintable(name));
        const QScopedPointer<QWidget> parent(new QWidget);
        const QWidget* widget = m_loader.createWidget(name, parent.data());
        QVERIFY2(widget, qPrintable(name));
        QCOMPARE(QString(widget->metaObject()->className()), name);
        QCOMPARE(widget->parentWidget(), parent.data()); // a device view, too
    }
    const QScopedPointer<QWidget> gauge(m_loader.createWidget("DataChart"));
    QCOMPARE(gauge->property("value").toDouble(), 0.0); // no sample
}

void TestDesignerPlugin::formsSetProperties()
{
    const char form[] = R"(<ui version="4.0"><class>F</class><widget class="QWidget" name="F">
        <widget class="DataChart" name="gauge">
          <property name="minimum"><double>10</double></property>
          <property name="maximum"><double>20</double></property>
          <property name="value"><double>15.5</double></property>
          <property name="unitText"><string>A</string></property>
          <property name="caption"><string>Current</string></property>
        </widget>
        <widget class="DynamicChart" name="chart">
          <property name="antialiasing"><bool>false</bool></property>
          <property name="seriesNames"><stringlist><string>One</string></stringlist></property>
        </widget>
        <widget class="ChartForm" name="charts">
          <property name="currentIndex"><number>0</number></property>
        </widget>
        <widget class="ChildForm" name="device">
          <property name="name"><string>Rack 3</string></property>
        </widget></widget></ui>)";
    QBuffer buffer;
    buffer.setData(form, sizeof form - 1);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    const QScopedPointer<QWidget> loaded(m_loader.load(&buffer));
    QVERIFY2(loaded, qPrintable(m_loader.errorString()));
    QCOMPARE(loaded->findChild<DataChart*>("gauge")->accessibleName(), QString("Current: 15.5 A"));
    auto* chart = loaded->findChild<TrendChart*>("chart");
    QVERIFY(!chart->getUseAntialiasing());
    chart->addData(0, 5);
    QVERIFY(chart->accessibleName().contains("One"));
    QCOMPARE(loaded->findChild<QWidget*>("charts")->property("currentIndex").toInt(), 0);
    QCOMPARE(loaded->findChild<QWidget*>("device")->property("name").toString(), QString("Rack 3"));
}

void TestDesignerPlugin::editorsShowSamples()
{
    auto* editor = reinterpret_cast<QDesignerFormEditorInterface*>(this); // never asked
    for (QDesignerCustomWidgetInterface* plugin : qAsConst(m_plugins)) {
        const QByteArray name = plugin->name().toLatin1();
        QVERIFY2(kWidgets.contains(plugin->name()), name);
        QCOMPARE(plugin->group(), QString("devView"));
        QVERIFY2(!plugin->icon().pixmap(22).isNull(), name);
        QVERIFY2(!plugin->toolTip().isEmpty() && !plugin->whatsThis().isEmpty(), name);
        QVERIFY2(QFile::exists(DEVVIEW_HEADERS "/" + plugin->includeFile()), name);
        QVERIFY2(plugin->domXml().contains("\"" + plugin->name() + "\""), name);

        const QScopedPointer<QWidget> bare(plugin->createWidget(nullptr));
        plugin->initialize(editor);
        const QScopedPointer<QWidget> filled(plugin->createWidget(nullptr));
        bare->resize(600, 450);
        filled->resize(600, 450);
        QVERIFY2(coloursOf(*filled) > 1, name);
        QVERIFY2(bare->grab().toImage() != filled->grab().toImage(), name);
    }
}

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"

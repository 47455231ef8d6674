// The smallest program that shows a device view: one snapshot, and commands printed as they come.
// May touch: the library as it is installed.

#include <devview/childform.h>

#include <QApplication>
#include <QDebug>
#include <QImage>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);

    ChildForm view(nullptr);
    view.setName(QStringLiteral("Example UPS"));
    view.setUserInfo(QStringLiteral("example"), 1);
    view.flushData({{realdata_BatteryStatus, 9},
                    {realdata_ChargeRemaining, 87},
                    {realdata_MinutesRemaining, 42},
                    {realdata_InputNumLines, 1},
                    {realdata_InputVoltage_A, 230},
                    {realdata_InputFre_A, 500},
                    {realdata_OutputSource, 3},
                    {realdata_OutputNumLines, 1},
                    {realdata_OutputVoltage_A, 230},
                    {realdata_OutputLoad_A, 34},
                    {info_ups_type, QStringLiteral("Example 3000")}});
    view.refreshData();
    QObject::connect(&view, &CollectView::postDEvent,
                     [](int code, const QMap<QString, QVariant>& command) {
                         qInfo() << "command" << code << command;
                     });

    // "--once": paint one frame and end, for a check without a display.
    if (app.arguments().contains(QStringLiteral("--once"))) {
        const QImage frame = view.grab().toImage();
        return frame.isNull() || frame.allGray() ? 1 : 0;
    }
    view.resize(view.sizeHint());
    view.show();
    return QApplication::exec();
}

#ifndef QUIETPLATFORM_H
#define QUIETPLATFORM_H

// The offscreen platform complains of windows with a least size and of menus; all other warnings
// end the test, as they do in the other programs.
// May touch: Qt Core.

#include <QString>

inline QtMessageHandler& handlerOfTest()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

// For initTestCase().
inline void dropRemarksOfThePlatform()
{
    qunsetenv("QT_FATAL_WARNINGS");
    handlerOfTest() = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
            if (!text.startsWith("This plugin does not support"))
                handlerOfTest()(type == QtWarningMsg ? QtFatalMsg : type, context, text);
        });
}

#endif // QUIETPLATFORM_H

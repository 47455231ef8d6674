#ifndef DESKSTYLE_H
#define DESKSTYLE_H

// The style of the desk: Fusion, which moves nothing where the operator wants no motion.
// May touch: Qt Widgets.

#include <QProxyStyle>

class DeskStyle : public QProxyStyle
{
    Q_OBJECT

public:
    DeskStyle();

    // For all that asks from now on; at first everything moves.
    static void setMotion(bool moves);

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
};

#endif // DESKSTYLE_H

#ifndef CHARTSTACK_H
#define CHARTSTACK_H

// The stack of chart pages. The form calls it a plain widget, so that each page is made inside it:
// a page that is made first and moved in then is styled anew with all that is in it.
// May touch: Qt.

#include <QStackedWidget>

class ChartStack : public QStackedWidget
{
    Q_OBJECT

public:
    using QStackedWidget::QStackedWidget;
};

#endif // CHARTSTACK_H

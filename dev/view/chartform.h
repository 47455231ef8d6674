#ifndef CHARTFORM_H
#define CHARTFORM_H

// The single-phase and the three-phase chart page in one place; only the page that shows works.
// May touch: the two chart pages.

#include <devview/devview_export.h>

#include <QMap>
#include <QString>
#include <QVariant>
#include <QWidget>

class Ui_ChartForm;

class DEVVIEW_EXPORT ChartForm : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ getCurrentIndex WRITE setCurrentIndex)
    Q_PROPERTY(QString currentName READ getCurrentName WRITE setCurrentName)

public:
    // Starts on the three-phase page.
    explicit ChartForm(QWidget* parent = nullptr);
    ~ChartForm() override;

    // 0 single phase, 1 three phases. An index without a page changes nothing.
    int getCurrentIndex();
    void setCurrentIndex(int index);

    // false resets gauges, texts and curves of the page that shows; true leaves it as it is.
    void initFormInfo(bool flag);
    // Shows a snapshot on the page that shows; the other page keeps its state.
    void refreshFormInfo(QMap<int, QVariant> snapshot);
    // Stored for the host.
    void setCurrentName(QString name);
    QString getCurrentName() const { return currentName; }

private:
    Ui_ChartForm* ui;
    QString currentName;
};

#endif // CHARTFORM_H

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

/// Both chart pages in one place, of which only the one that shows works.
///
/// A host that does not know how many phases its device has takes this, sets the page when it
/// does, and feeds it on every poll. The hidden page keeps its state and gets no samples. Where the
/// number of phases is known, RTSingleGraphForm or RTThreeGraphForm alone do as well.
/// \image html chart.png "The single-phase page in the desk"
/// \image html chart-three-phase.png "The three-phase page"
class DEVVIEW_EXPORT ChartForm : public QWidget
{
    Q_OBJECT
    /// The page that shows; 1 at first. See setCurrentIndex().
    Q_PROPERTY(int currentIndex READ getCurrentIndex WRITE setCurrentIndex)
    /// Stored for the host.
    Q_PROPERTY(QString currentName READ getCurrentName WRITE setCurrentName)

public:
    /// Starts on the **three-phase** page; of a single-phase unit set page 0.
    explicit ChartForm(QWidget* parent = nullptr);
    ~ChartForm() override;

    /// 0: RTSingleGraphForm, 1: RTThreeGraphForm.
    int getCurrentIndex();
    /// Shows the other page as it was left. An index without a page changes nothing.
    void setCurrentIndex(int index);

    /// `false` resets gauges, texts and curves of the page that shows, for another device;
    /// `true` leaves it as it is.
    void initFormInfo(bool flag);
    /// Shows a snapshot (keys and units: _UPS_REG_ENUM; battery temperature in **whole degrees**)
    /// on the page that shows, and adds one sample to each of its curves. Missing keys read 0.
    void refreshFormInfo(QMap<int, QVariant> snapshot);
    /// Stored for the host; shown nowhere.
    void setCurrentName(QString name);
    /// What setCurrentName() was given.
    QString getCurrentName() const { return currentName; }

private:
    Ui_ChartForm* ui;
    QString currentName;
};

#endif // CHARTFORM_H

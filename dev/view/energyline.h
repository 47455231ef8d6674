#ifndef ENERGYLINE_H
#define ENERGYLINE_H

// The energy-flow page: input, bypass, rectifier, inverter, battery and load as a drawn diagram
// with moving power flows, and five panels of values that a click opens and closes.
// May touch: Qt Widgets, the data keys and the library's number formats.

#include <devview/devview_export.h>

#include <QMap>
#include <QPair>
#include <QRectF>
#include <QRegion>
#include <QScopedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <QWidget>

class PaintMemory;
class QLinearGradient;
class QPainter;
class QTimer;
class RealTimeBlock;

/// The energy-flow page: where the power comes from and where it goes.
///
/// Every length is in widget pixels; nothing scales, the diagram stays centred at its one size. The
/// four images come from the host's resources at `://image/INPUT.png` (30 by 10 px) and
/// `://image/LOAD.png`, `://image/REC.png`, `://image/INV.png` (70 by 55 px), each with an optional
/// `@2x` sibling for denser screens. What a host does not supply, the library draws from its own.
/// \image html energyline.png "A single-phase UPS on mains"
class DEVVIEW_EXPORT Energyline : public QWidget
{
    Q_OBJECT

public:
    /// Opens all panels, turns all flows off and starts the animation, ten steps a second. The
    /// animation rests while the page is hidden or its window minimised; where the style wants no
    /// animations (`QStyle::SH_Widget_Animation_Duration` is 0), the steps move nothing.
    explicit Energyline(QWidget* parent = nullptr);
    ~Energyline() override;

    /// Takes over a snapshot: keys 0 to 72 as int (missing: 0), 4000 to 4002 as text (missing:
    /// empty); units in _UPS_REG_ENUM, powers in **kW**, battery temperature in **tenths**. Sets
    /// every display string and the six flow flags. Does not repaint; the next animation step shows
    /// the new values. The accessible name says what the panels show.
    void flushData(QMap<int, QVariant> map);

    /// Inverts one of the panel flags; the next animation step shows it.
    void toggle_view_Flag(bool& flag);
    /// Turns the flows off, all but rectifier to inverter, which keeps its state. The next
    /// animation step shows it, the next flushData() sets them all anew.
    void set_all_off_Flow();

    /// What the diagram and all its panels cover, px. In a smaller place its margins are cut off.
    QSize sizeHint() const override;

protected:
    /// Base, battery, flows, texts and panels, in this order.
    void paintEvent(QPaintEvent* event) override;
    /// Opens or closes a panel: the input, bypass and load boxes each their own, the battery both
    /// the battery's and the device's. Edges belong to their area. Does not repaint.
    void mousePressEvent(QMouseEvent* e) override;

    /// \name The layers of one paint, lowest first
    /// Each leaves the painter as it found it.
    /// @{
    void drawBase(QPainter* painter);    ///< wiring, boxes, captions
    void drawBattery(QPainter* painter); ///< battery body, charge, cap
    void drawflow(QPainter* painter);    ///< the flows that are on
    void drawdate(QPainter* painter);    ///< charge, load and the open panels
    /// @}

    /// Moves the flows by one step and asks for a repaint: of the lines of the flows that are on,
    /// or of the whole page where anything else that it shows has changed since the last step.
    void advanceFlow();

    /// \name Finished texts of the last snapshot, empty before the first
    /// Voltages, loads, minutes and charge are shown as received; currents, frequencies, battery
    /// voltage and temperature arrive in tenths. Where a phase count is exactly 1 a text has one
    /// value, else "A/B/C".
    /// @{
    QString ac_AVolt;         ///< "230 V"
    QString ac_ACur;          ///< "5.2 A"
    QString ac_Frenq;         ///< "50.0"
    QString byp_Volt;         ///< "230 V"
    QString byp_Frenq;        ///< "50.0"
    QString ups_Type;         ///< model, white space simplified
    QString ups_Name;         ///< as received
    QString ups_Manufacturer; ///< as received
    QString ld_Volt;          ///< "230 V"
    QString ld_Cur;           ///< "5.2 A"
    QString ld_ActPower;      ///< "3 KW", the high word alone
    QString ld_Percent;       ///< "45 %"
    QString ld_Freq;          ///< "50.0 Hz"
    QString ld_State;         ///< what feeds the load; empty for a source outside 0 to 7
    QString bat_Volt;         ///< "27.1"
    QString bat_Temp;         ///< "25.0", or "--" below 0 or above 100 degrees
    QString bat_Min;          ///< "40"
    QString bat_Cap;          ///< "95", per cent
    QString bat_State;        ///< empty for a status outside 0 to 9
    /// @}

    /// \cond
    // Kept for hosts that derive; never filled by this page.
    QString ac_BVolt, ac_CVolt, ac_BCur, ac_CCur;
    QString byp_State;
    QString ups_WorkMode, ups_WorkDays;
    QString ld_AppaPower, ld_ReactPower;
    QString inv_temp, inv_state, rec_temp, rec_state;
    QString currentName;
    QVector<QString> rtDataArray;
    bool inputIsSinglePhase = false;
    bool outputIsSinglePhase = false;
    /// \endcond

    QVector<QString> bat_fault;   ///< translated; not shown
    QVector<QString> supply_mode; ///< translated; ld_State is one of these

    /// \name The flows that are on, by source and charge of the last snapshot
    /// @{
    bool input_rec_Flag = false; ///< utility; bypass while the battery charges
    bool rec_bat_Flag = false;   ///< utility while it does *not* charge; bypass while it does
    bool bat_inv_Flag = false;   ///< battery
    bool rec_inv_Flag = false;   ///< utility
    bool inv_load_Flag = false;  ///< utility, battery
    bool byp_load_Flag = false;  ///< bypass
    /// @}

    /// \name The panels that are open
    /// @{
    bool INPUT_view_Flag = true;   ///< voltage, current, frequency
    bool BYPASS_view_Flag = true;  ///< voltage, frequency
    bool UPS_view_Flag = true;     ///< type, name, manufacturer
    bool LOAD_view_Flag = true;    ///< voltage, current, frequency, power, load, source
    bool BATTERY_view_Flag = true; ///< voltage, temperature, minutes, charge, status
    bool RECINV_view_Flag = true;  ///< no panel has it
    /// @}

    /// \name The centre
    /// Half the widget's size in whole pixels, set anew by every layer and every click.
    /// @{
    double wid = 0.0; ///< px
    double hei = 0.0; ///< px
    /// @}

    /// The steps, 100 ms apart. They also bring new values and panels onto the page.
    QTimer* timer = nullptr;
    float m_offset = 0.0F; ///< dash offset of the flows, in pen widths; painted to the next 35th
    int alarmValue = 20;   ///< per cent; up to here the battery shows its alarm colours
    int normalValue = 60;  ///< per cent; above here its normal colours

    /// \name The battery symbol, set by every paint
    /// @{
    int borderRadius = 0; ///< px, of the outline
    int bgRadius = 0;     ///< px, of the charge
    int headRadius = 0;   ///< px, of the cap
    QRectF batteryRect;   ///< px, the body
    /// @}

private:
    struct Flow;
    struct PanelLine;
    struct Panel;
    static const Flow kFlows[];
    static const Panel kPanels[];
    // All that a paint shows, but for the place of the dashes.
    using Shown = QPair<QStringList, QVector<int>>;

    QPointF centre();
    void takeElectricalValues(const RealTimeBlock& values);
    void takeFlows(int supply, int batteryStatus);
    void drawBatteryFill(QPainter* painter);
    QLinearGradient fillGradient(int charge) const;
    void drawFigures(QPainter* painter);
    void drawPanel(QPainter* painter, const Panel& panel);
    QString valueOf(const PanelLine& line) const;
    void tellValues();
    void drawLayers(QPainter* painter);
    void rest();
    void wake();
    Shown shown() const;
    bool isSeen() const;
    QRegion flowRegion() const;
    QVector<int> flowKey() const;

    Shown m_shown; // at the last step
    bool m_resting = false;
    QScopedPointer<PaintMemory> m_flowPictures;
};

#endif // ENERGYLINE_H

#ifndef DATACHART_H
#define DATACHART_H

// Half-circle gauge: an arc that fills from the left with the value, in the colour of the band in
// which the value lies, and the value in a box below.
// May touch: Qt and its own value; knows no snapshot, no page and no host.

#include <devview/devview_export.h>

#include <QColor>
#include <QFont>
#include <QList>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QRegion>
#include <QString>
#include <QTextLayout>
#include <QWidget>

#include <memory>

class QRadialGradient;
class QTimer;
class SplitPicture;

/// A half-circle gauge: the arc fills from the left with the value, in the colour of the band in
/// which the value lies; the value itself stands in a box below.
///
/// It knows no snapshot: a page or a host gives it numbers in the unit of its scale. Set the scale
/// first, then the value, because a value outside the scale of that moment becomes `--`.
/// \image html gauge.png "The load of a UPS on a scale of 0 to 160 %"
class DEVVIEW_EXPORT DataChart : public QWidget
{
    Q_OBJECT
    // For Qt Designer, in this order: a value counts on the scale that is there.
    /// Begin of the scale; 60 at first. Setting it repaints.
    Q_PROPERTY(qreal minimum READ minimum WRITE showMinimum)
    /// End of the scale; 300 at first. Setting it repaints.
    Q_PROPERTY(qreal maximum READ maximum WRITE showMaximum)
    /// In the unit of the scale, 0 where `--` is shown. See setValue().
    Q_PROPERTY(qreal value READ value WRITE setValue)
    /// "V" at first. Not painted.
    Q_PROPERTY(QString unitText READ unitText WRITE setUnitText)
    /// Empty at first. Not painted.
    Q_PROPERTY(QString caption READ caption WRITE setCaption)

public:
    /// Scale 60 to 300, unit "V", value 0, bands green, yellow, red with all limits at 1.
    explicit DataChart(QWidget* parent = nullptr);
    ~DataChart() override;

    /// Shows v in the unit of the scale. Outside minimum..maximum (both included), not finite, or
    /// on a scale without width: `--`, and 0 as the value. Repaints when the value changes; where
    /// "0" becomes `--` or back it does not, and the caller has to update(). The value jumps; there
    /// is no animation on the way.
    void setValue(qreal v);
    /// The unit, in the accessible name; not painted.
    void setUnitText(QString unit);
    /// Where the scale ends; any number. Only stored: the next paint shows it, and the value is not
    /// looked at again.
    void setMaxValue(qreal v);
    /// Where the scale begins; as setMaxValue().
    void setMinValue(qreal v);
    /// The bands; the next paint shows them.
    /// \param ratio colour per band: 0 green, 1 yellow, 2 red, 3 grey; none: grey
    /// \param values upper limit per band, in the unit of the scale. With three colours the first
    /// band excludes its limit and the second includes it; with any other number only the first
    /// limit counts. Where a list is too short, its last band goes on.
    void setRadioValue(QList<int> ratio, QList<int> values);
    /// Where the scale ends.
    qreal getMaxValue() { return m_maxValue; }
    /// Where the scale ends.
    qreal maximum() const { return m_maxValue; }
    /// Where the scale begins.
    qreal minimum() const { return m_minValue; }
    /// 0 where `--` is shown.
    qreal value() const { return m_value; }
    /// What setUnitText() was given, or "V".
    QString unitText() const { return m_unitText; }
    /// What setCaption() was given.
    QString caption() const { return m_caption; }
    /// What the gauge is about, for the accessible name: "caption: value unit". Not painted.
    void setCaption(const QString& caption);

    /// It has one, so that layouts give it no more than it can fill.
    bool hasHeightForWidth() const override { return true; }
    /// px; as high as the dial and its numbers are at that width, up to kHighestDial.
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override; ///< arc, marks, numbers, box
    void hideEvent(QHideEvent* event) override;   ///< forgets what was painted
    int bandColour() const;                       ///< colour index of m_value
    int coveredSpan() const;   ///< unfilled part of the arc, 1/16 degree, from its right end
    QString valueText() const; ///< the number in the box, or `--`

    double m_value = 0;                      ///< the value, 0 while it is `--`
    double m_maxValue = 300;                 ///< end of the scale
    double m_minValue = 60;                  ///< begin of the scale
    double m_outerRadius = 0;                ///< px, as all radii and lengths; set by every paint
    double m_innerRadius = 0;                ///< px; kept for derived gauges
    double m_colorPieRadius = 0;             ///< px, of the coloured arc
    double m_coverCircleRadius = 0;          ///< px; kept for derived gauges
    double m_currentValue = 0;               ///< what the arc is drawn for
    double m_longHand = 0;                   ///< major mark
    double m_okHand = 0;                     ///< minor mark
    double m_shortHand = 0;                  ///< kept for derived gauges
    double m_space = 0;                      ///< between arc and marks
    bool m_bReverse = false;                 ///< the last change lowered the value
    static constexpr int kHighestDial = 120; ///< px

    QTimer* updateTimer;              ///< one step after the start, then it stops for good
    QTimer* refreshTimer = nullptr;   ///< kept for derived gauges; never created
    QPointF m_center;                 ///< px, of the widget; set by every paint
    QRectF m_pieRect;                 ///< px, around the arc; set by every paint
    QString m_unitText;               ///< unit
    QString m_caption;                ///< caption
    QList<int> m_ratio{0, 1, 2};      ///< colours of the bands
    QList<int> m_radioValue{1, 1, 1}; ///< limits of the bands
    QList<QColor> penColor;           ///< kept for derived gauges
    bool m_invalidValue = false;      ///< the last value given was not on the scale

private slots:
    void UpdateGraph();

private:
    void showMinimum(qreal v);
    void showMaximum(qreal v);
    bool isOnScale(double v) const;
    void tellValue();

    // What the dial's pictures depend on, beside the band.
    struct Dial {
        QSize size;
        QFont font;
        int dpiX = 0;
        int dpiY = 0;
        double minimum = 0;
        double maximum = 0;
        bool operator==(const Dial& other) const;
    };

    void updateFrom(int covered);
    void resetVariables();
    void drawDial(QPainter* painter, int covered);
    void drawColorPies(QPainter* painter);
    void drawGraph(QPainter* painter, int covered);
    void drawCoverLines(QPainter* painter);
    void drawCoverCircle(QPainter* painter);
    void drawMarkAndText(QPainter* painter);
    void drawLabel(QPainter* painter, int number, double angle);
    void drawTextRect(QPainter* painter);
    void drawValue(QPainter* painter);
    void setColor(QRadialGradient& gradient, int index);
    QPointF arcCentre() const;
    QPointF onCircle(double radius, double degrees) const;
    QPolygonF cover() const;
    QRegion coverBetween(int span, int other) const;
    QRect valueBox() const;
    QRectF valuePlace();
    Dial dialNow() const;

    std::unique_ptr<SplitPicture> m_dial;
    QTextLayout m_valueText;
    // In the last paint.
    Dial m_dialShown;
    int m_bandShown = 0;
    QRect m_valueShown;
};

#endif // DATACHART_H

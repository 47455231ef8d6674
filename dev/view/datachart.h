#ifndef DATACHART_H
#define DATACHART_H

// Half-circle gauge: an arc that fills from the left with the value, in the colour of the band in
// which the value lies, and the value in a box below.
// May touch: Qt and its own value; knows no snapshot, no page and no host.

#include <devview/devview_export.h>

#include <QColor>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QWidget>

#include <memory>

class PaintMemory;
class QRadialGradient;
class QTimer;

class DEVVIEW_EXPORT DataChart : public QWidget
{
    Q_OBJECT
    // For Qt Designer, in this order: a value counts on the scale that is there.
    Q_PROPERTY(qreal minimum READ minimum WRITE showMinimum)
    Q_PROPERTY(qreal maximum READ maximum WRITE showMaximum)
    Q_PROPERTY(qreal value READ value WRITE setValue)
    Q_PROPERTY(QString unitText READ unitText WRITE setUnitText)
    Q_PROPERTY(QString caption READ caption WRITE setCaption)

public:
    // Scale 60 to 300, unit "V", value 0, bands green, yellow, red.
    explicit DataChart(QWidget* parent = nullptr);
    ~DataChart() override;

    // Shows v in the unit of the scale. Outside minimum..maximum (both included), not finite, or
    // on a scale without width: "--", and 0 as the value. Repaints when the value changes; where
    // "0" becomes "--" or back it does not, and the caller has to update().
    void setValue(qreal v);
    // These four only store; the next paint shows them.
    void setUnitText(QString unit); // in the accessible name, not painted
    void setMaxValue(qreal v);
    void setMinValue(qreal v);
    // ratio: colour per band (0 green, 1 yellow, 2 red, 3 grey); values: upper limit per band.
    // With three colours the first band excludes its limit and the second includes it; with any
    // other number only the first limit counts. Where a list is too short, its last band goes on.
    void setRadioValue(QList<int> ratio, QList<int> values);
    qreal getMaxValue() { return m_maxValue; }
    qreal maximum() const { return m_maxValue; }
    qreal minimum() const { return m_minValue; }
    qreal value() const { return m_value; } // 0 where "--" is shown
    QString unitText() const { return m_unitText; }
    QString caption() const { return m_caption; }
    // The accessible name is the caption with the value and its unit.
    void setCaption(const QString& caption);

    // As high as the dial and its numbers are at that width, up to kHighestDial.
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    int bandColour() const;  // colour index of m_value
    int coveredSpan() const; // unfilled part of the arc, 1/16 degree, from its right end
    QString valueText() const;

    double m_value = 0;
    double m_maxValue = 300;
    double m_minValue = 60;
    double m_outerRadius = 0; // radii and lengths in px, set by every paint
    double m_innerRadius = 0;
    double m_colorPieRadius = 0;
    double m_coverCircleRadius = 0;
    double m_currentValue = 0;               // what the arc is drawn for
    double m_longHand = 0;                   // major mark
    double m_okHand = 0;                     // minor mark
    double m_shortHand = 0;                  // kept for derived gauges
    double m_space = 0;                      // between arc and marks
    bool m_bReverse = false;                 // the last change lowered the value
    static constexpr int kHighestDial = 120; // px

    QTimer* updateTimer;
    QTimer* refreshTimer = nullptr; // kept for derived gauges; never created
    QPointF m_center;
    QRectF m_pieRect;
    QString m_unitText;
    QString m_caption;
    QList<int> m_ratio{0, 1, 2};
    QList<int> m_radioValue{1, 1, 1};
    QList<QColor> penColor; // kept for derived gauges
    bool m_invalidValue = false;

private slots:
    void UpdateGraph();

private:
    void showMinimum(qreal v);
    void showMaximum(qreal v);
    bool isOnScale(double v) const;
    void tellValue();

    void resetVariables();
    void drawDial(QPainter* painter);
    void drawColorPies(QPainter* painter);
    void drawGraph(QPainter* painter);
    void drawCoverLines(QPainter* painter);
    void drawCoverCircle(QPainter* painter);
    void drawMarkAndText(QPainter* painter);
    void drawLabel(QPainter* painter, int number, double angle);
    void drawTextRect(QPainter* painter);
    void setColor(QRadialGradient& gradient, int index);
    QPointF arcCentre() const;

    std::unique_ptr<PaintMemory> m_dialMemory;
    std::unique_ptr<PaintMemory> m_arcMemory;
};

#endif // DATACHART_H

#ifndef TRENDCHART_H
#define TRENDCHART_H

// The scrolling chart behind DynamicChart and ThreeDynamicChart: curves that enter at the right
// edge and move left, one sample per 5 pixels. What differs between the two is in Look.
// May touch: Qt and its own samples; knows no snapshot, no page and no host.

#include <devview/devview_export.h>

#include <QCache>
#include <QColor>
#include <QFont>
#include <QList>
#include <QMap>
#include <QPen>
#include <QRegion>
#include <QStaticText>
#include <QStringList>
#include <QTime>
#include <QVector>
#include <QWidget>

#include <array>
#include <memory>

class PaintLayer;

/// What DynamicChart and ThreeDynamicChart share: curves that enter at the right edge and move left
/// by 5 px with every sample, in front of a grid, a scale and the time of day.
///
/// The chart knows no clock of its samples: feed all series once per poll, at a steady pace. The
/// time axis reaches from 40 s before now to 60 s after it and is not tied to the samples. Samples
/// that have left the box are forgotten; a box of 400 px holds 80. Lines of the grid are always
/// black and dotted.
/// \image html trend.png "Four curves"
class DEVVIEW_EXPORT TrendChart : public QWidget
{
    Q_OBJECT
    /// Smooth curves and letters; on at first.
    Q_PROPERTY(bool antialiasing READ getUseAntialiasing WRITE setUseAntialiasing)
    /// Stored; the grid is always black.
    Q_PROPERTY(QColor horizontalLineColor READ horizontalLineColor WRITE setHorizontalLineColor)
    /// Empty at first. Not painted.
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    /// Empty at first. Not painted.
    Q_PROPERTY(QStringList seriesNames READ seriesNames WRITE setSeriesNames)

public:
    /// Empties all series. The picture keeps the last curves until the next sample.
    void initValue();
    /// Adds the newest sample of series `id`, counted from 0, in the unit of its scale; any value
    /// is taken. Values beyond the scale are drawn outside the box, NaN leaves a gap. An unknown id
    /// adds nothing. Repaints. Until the chart was painted once it has no width and keeps one
    /// sample per series.
    void addData(int id, qreal value);

    /// Smooth curves and letters. Default: on. Repaints.
    void setUseAntialiasing(bool on);
    /// Whether curves and letters are smooth.
    bool getUseAntialiasing() const { return m_bUseAntialiasing; }
    /// Stored for hosts; the grid is always black and dotted. Repaints.
    void setHorizontalLineColor(const QColor& colour);
    /// What setHorizontalLineColor() was given.
    QColor horizontalLineColor() const { return m_hLineClr; }
    /// What the chart is about, for the accessible name: the caption, then the latest value of each
    /// series by its name. Not painted.
    void setCaption(const QString& caption);
    /// Names of the series by id, for the accessible name; without names they are numbered.
    void setSeriesNames(const QStringList& names);
    /// What setCaption() was given.
    QString caption() const { return m_caption; }
    /// What setSeriesNames() was given.
    QStringList seriesNames() const { return m_seriesNames; }

    QSize sizeHint() const override { return {350, 350}; }        ///< px
    QSize minimumSizeHint() const override { return {280, 280}; } ///< px

protected:
    /// One series as a derived chart shows it.
    struct Curve {
        QColor colour;    ///< of line and legend
        double fullScale; ///< the value that reaches the top of the box
    };
    /// What differs between the charts.
    struct Look {
        QVector<Curve> curves;  ///< by series id, at most kMaxSeries
        const char* styleSheet; ///< the ground
        bool gridCanBeHidden;   ///< whether m_bShowHLine is asked
        bool hasRightScale;     ///< 100 to 0 in steps of 10
    };
    static constexpr int kMaxSeries = 6; ///< more have no place to keep their samples

    /// For derived charts.
    TrendChart(const Look& look, QWidget* parent);
    ~TrendChart() override;

    void paintEvent(QPaintEvent* event) override;   ///< box, scales, time, curves
    void resizeEvent(QResizeEvent* event) override; ///< forgets samples of series 0 to 2 that left
    void hideEvent(QHideEvent* event) override;     ///< forgets what was painted
    /// The "now" of the time axis, local time.
    virtual QTime wallClock() const { return QTime::currentTime(); }

    double m_leftSpace = 0; ///< margin left and right of the box, px
    double m_topSpace = 0;  ///< margin above and below it, px
    /// \name The series, newest sample first, each in the unit of its scale
    /// @{
    QVector<double> m_dataVec0; ///< id 0
    QVector<double> m_dataVec1; ///< id 1
    QVector<double> m_dataVec2; ///< id 2
    QVector<double> m_dataVec3; ///< id 3
    QVector<double> m_dataVec4; ///< id 4
    QVector<double> m_dataVec5; ///< id 5
    /// @}
    QList<QPen> color_pen;               ///< by series id
    QMap<int, QVector<double>> curveMap; ///< the series as painted
    bool m_bUseAntialiasing;             ///< smooth; on at first
    bool m_bShowHLine;                   ///< nine lines of the grid; on at first
    QRectF m_topRect;                    ///< upper two thirds, px; kept for derived charts
    QRectF m_bottomRect;                 ///< lower third, px; kept for derived charts
    QRectF m_boxRect;                    ///< the plot box, px; empty until the first paint
    QColor m_hLineClr;                   ///< stored only
    int max_Y_Left = 400;  ///< top label of the left scale; the curves do not follow it
    int min_Y_Left = 0;    ///< kept for derived charts
    int max_Y_Right = 100; ///< top label of the right scale; the curves do not follow it
    int min_Y_Right = 0;   ///< kept for derived charts

private:
    bool hasSeries(int id) const { return id >= 0 && id < m_look.curves.size(); }
    QVector<double>& series(int id);
    void initVariables();
    void updateVector(int id);
    void setCurveData(int id, const QVector<double>& samples);
    void updatePart(const QRegion& part);
    void tellLatest();

    // The steps of a paint. They leave out what m_exposed does not touch.
    void resetVariables(QPainter* painter);
    void drawBox(QPainter* painter);
    void drawLines(QPainter* painter);
    void drawText(QPainter* painter);
    void drawScales(QPainter* painter);
    void drawTimeAxis(QPainter* painter);
    void drawGraph(QPainter* painter);

    void drawCurves(QPainter* painter, const QRect& place);

    template <typename Draw>
    void drawAt(const QRectF& place, QPainter* painter, Draw draw);
    void keepTime();
    QRect timesPlace() const;
    const QStaticText& timeText(QTime time);
    double xOf(int sample) const;
    double yOf(double pixels) const;
    double scaleOf(int id) const;
    QLineF gridLine(int k) const;
    QRegion boxLines() const;
    QRect curvePlace(int id) const;
    QRegion curveRows() const;
    double leftEnd(const QVector<double>& samples) const;
    bool isDrawnUpTo(int samples) const;
    int samplesSinceDrawn() const;
    QRect stillPlace(double distance) const;

    static constexpr int kMostTimeTexts = 128; // a sample each second shows 110 before one is old

    const Look m_look;
    QString m_caption;
    QStringList m_seriesNames;
    QMap<int, QString> m_latest; // last value given per series, trimmed or not
    QRegion m_exposed;           // by the paint in progress
    QTime m_now;                 // that the time axis shows
    int m_secondAsked = -1;      // of the day, for which the time axis was last to be painted
    QCache<int, QStaticText> m_timeTexts; // by second of the day
    QFont m_timeFont;
    std::array<QRect, kMaxSeries> m_places; // of the curves, what they cover at most
    QRegion m_curveRows;                    // they in rows of one width
    QRegion m_boxLines;                     // what frame and grid cover
    struct {                                // of the last paint
        QMap<int, QVector<double>> curves;
        QList<QPen> pens;
        QRectF box;
        bool isAntialiased = false;
    } m_drawn;
    struct { // of the last paint
        QRectF box;
        bool hasGrid = false;
        bool isAntialiased = false;
    } m_drawnBox;
    std::unique_ptr<PaintLayer> m_boxLayer;
    std::unique_ptr<PaintLayer> m_curveLayer;
};

#endif // TRENDCHART_H

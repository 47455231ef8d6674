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

class ScrollMemory;

class DEVVIEW_EXPORT TrendChart : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool antialiasing READ getUseAntialiasing WRITE setUseAntialiasing)
    Q_PROPERTY(QColor horizontalLineColor READ horizontalLineColor WRITE setHorizontalLineColor)
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    Q_PROPERTY(QStringList seriesNames READ seriesNames WRITE setSeriesNames)

public:
    // Empties all series. The picture keeps the last curves until the next sample.
    void initValue();
    // Adds the newest sample of series `id`, counted from 0, in the unit of its scale; any value
    // is taken. Values beyond the scale are drawn outside the box, NaN leaves a gap. An unknown id
    // adds nothing. Repaints.
    // Until the chart was painted once it has no width and keeps one sample per series.
    void addData(int id, qreal value);

    // Default: on. Repaints.
    void setUseAntialiasing(bool on);
    bool getUseAntialiasing() const { return m_bUseAntialiasing; }
    // Stored for hosts; the grid is always black and dotted. Repaints.
    void setHorizontalLineColor(const QColor& colour);
    QColor horizontalLineColor() const { return m_hLineClr; }
    // The accessible name: the caption, then the latest value of each series by its name; without
    // names the series are numbered.
    void setCaption(const QString& caption);
    void setSeriesNames(const QStringList& names);
    QString caption() const { return m_caption; }
    QStringList seriesNames() const { return m_seriesNames; }

    QSize sizeHint() const override { return {350, 350}; }
    QSize minimumSizeHint() const override { return {280, 280}; }

protected:
    struct Curve {
        QColor colour;
        double fullScale; // the value that reaches the top of the box
    };
    struct Look {
        QVector<Curve> curves; // by series id, at most kMaxSeries
        const char* styleSheet;
        bool gridCanBeHidden; // whether m_bShowHLine is asked
        bool hasRightScale;
    };
    static constexpr int kMaxSeries = 6;

    TrendChart(const Look& look, QWidget* parent);
    ~TrendChart() override;

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    // The "now" of the time axis.
    virtual QTime wallClock() const { return QTime::currentTime(); }

    double m_leftSpace = 0; // margins of the box, px
    double m_topSpace = 0;
    QVector<double> m_dataVec0; // the series, newest sample first
    QVector<double> m_dataVec1;
    QVector<double> m_dataVec2;
    QVector<double> m_dataVec3;
    QVector<double> m_dataVec4;
    QVector<double> m_dataVec5;
    QList<QPen> color_pen;               // by series id
    QMap<int, QVector<double>> curveMap; // the series as painted
    bool m_bUseAntialiasing;
    bool m_bShowHLine;
    QRectF m_topRect; // upper two thirds and lower third; kept for derived charts
    QRectF m_bottomRect;
    QRectF m_boxRect; // the plot box; empty until the first paint
    QColor m_hLineClr;
    int max_Y_Left = 400; // top labels of the scales; the curves do not follow them
    int min_Y_Left = 0;
    int max_Y_Right = 100;
    int min_Y_Right = 0;

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
    void drawFrame(QPainter* painter);
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
    bool isThick() const;
    int ink() const;
    QLineF gridLine(int k) const;
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
    double m_ratio = 1;          // of the screen's pixels at the last paint
    QRegion m_exposed;           // by the paint in progress
    QTime m_now;                 // that the time axis shows
    int m_secondAsked = -1;      // of the day, for which the time axis was last to be painted
    QCache<int, QStaticText> m_timeTexts; // by second of the day
    QFont m_timeFont;
    std::array<QRect, kMaxSeries> m_places; // of the curves, what they cover at most
    QRegion m_curveRows;                    // they in rows of one width
    struct {                                // of the last paint
        QMap<int, QVector<double>> curves;
        QList<QPen> pens;
        QRectF box;
        bool isAntialiased = false;
    } m_drawn;
    std::unique_ptr<ScrollMemory> m_curveMemory;
};

#endif // TRENDCHART_H

#ifndef RECORDINGDEVICE_H
#define RECORDINGDEVICE_H

// A paint device that draws nothing and lists what it was asked to draw, so that a test compares
// numbers instead of pixels, whatever fonts the machine has:
//
//     RecordingDevice recorder(widget.size());
//     widget.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
//     for (const PaintStep& line : recorder.stepsOf(PaintStep::Polyline)) ...
//
// May touch: Qt Gui.

#include <QBrush>
#include <QFont>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>
#include <QPolygonF>
#include <QTransform>
#include <QVector>

#include <memory>

// One primitive with the painter's state at that moment. Coordinates are logical, as the painter's
// caller gave them; `transform` maps them to the device, and onDevice() does it.
struct PaintStep {
    enum Kind {
        Line,        // points: two; one step per line
        Polyline,    // points
        Polygon,     // points
        Points,      // points
        Rect,        // rect
        Ellipse,     // rect
        RoundedRect, // rect and radii, taken from a path that drawRoundedRect made
        Path,        // path and its bounds in rect: any other path
        Text,        // text, baseline start in points[0], width; one step per run of the layout
        Pixmap,      // pixmap, target in rect, part of the pixmap in source
        TiledPixmap  // pixmap, target in rect
    };

    Kind kind = Path;
    QPolygonF points;
    QRectF rect;
    QRectF source;
    QSizeF radii;
    QPainterPath path;
    QString text;
    qreal width = 0.0;
    QPixmap pixmap;

    QPen pen;
    QBrush brush;
    QFont font;
    QTransform transform;
    QPainter::RenderHints hints;
    qreal opacity = 1.0;
    bool hasClip = false;
    QRectF clip; // bounds of the clip, logical; meant only while hasClip

    QPolygonF pointsOnDevice() const { return transform.map(points); }
    QRectF rectOnDevice() const { return transform.mapRect(rect); }
};

class RecordingEngine;

class RecordingDevice : public QPaintDevice
{
public:
    // size: what the device reports as its own, px at 96 dpi; devicePixelRatio: what it reports as
    // device pixels per pixel, which then scales every transform.
    explicit RecordingDevice(QSize size, int devicePixelRatio = 1);
    ~RecordingDevice() override;

    const QVector<PaintStep>& steps() const;
    QVector<PaintStep> stepsOf(PaintStep::Kind kind) const;
    // The text runs with exactly this text.
    QVector<PaintStep> textsOf(const QString& text) const;
    // All text runs, in the order of drawing.
    QStringList texts() const;
    void clear();

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize m_size;
    int m_devicePixelRatio;
    std::unique_ptr<RecordingEngine> m_engine;
};

#endif // RECORDINGDEVICE_H

#ifndef RECORDINGDEVICE_H
#define RECORDINGDEVICE_H

// A paint device that draws nothing and lists what it was asked to draw, so that a test compares
// numbers instead of pixels, whatever fonts the machine has:
//
//     RecordingDevice recorder(widget.size());
//     widget.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
//     for (const PaintStep& line : recorder.stepsOf(PaintStep::Line)) ...
//
// May touch: Qt Gui.

#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <QTransform>
#include <QVector>

#include <memory>

// One primitive with the painter's state at that moment. Coordinates are logical, as the painter's
// caller gave them; `transform` maps them to the device.
struct PaintStep {
    enum Kind {
        Line,        // points: two; one step per line
        Polyline,    // points
        RoundedRect, // rect and radii, taken from a path that drawRoundedRect made
        Path,        // bounds in rect: any other shape
        Text,        // text, baseline start in points[0], width; one step per run of the layout
        Pixmap       // pixmap, target in rect
    };

    Kind kind = Path;
    QPolygonF points;
    QRectF rect;
    QSizeF radii;
    QString text;
    qreal width = 0.0;
    QPixmap pixmap;

    QPen pen;
    QBrush brush;
    QFont font;
    QTransform transform;
    QPainter::RenderHints hints;
    QRectF clip; // bounds, logical; null: none
};

class RecordingEngine;

// An image for its metrics only; it stays unpainted.
class RecordingDevice : public QImage
{
public:
    explicit RecordingDevice(QSize size, int devicePixelRatio = 1);
    ~RecordingDevice() override;

    const QVector<PaintStep>& steps() const;
    QVector<PaintStep> stepsOf(PaintStep::Kind kind) const;
    // All text runs, in the order of drawing.
    QStringList texts() const;

    QPaintEngine* paintEngine() const override;

private:
    std::unique_ptr<RecordingEngine> m_engine;
};

#endif // RECORDINGDEVICE_H

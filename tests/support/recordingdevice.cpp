#include "recordingdevice.h"

#include <QPaintEngine>
#include <QPainterPath>

namespace {

// The radii of a path that is a rounded rectangle and nothing else, else an empty size. Such a path
// starts below the top left corner and is a closed ring of four corner arcs joined by lines.
QSizeF roundedRectRadii(const QPainterPath& path)
{
    const QRectF bounds = path.boundingRect();
    if (path.elementCount() < 13 || !path.elementAt(0).isMoveTo() || !path.elementAt(1).isCurveTo())
        return {};
    const QPointF start = path.elementAt(0);
    const QPointF firstCornerEnd = path.elementAt(3);
    const QSizeF radii(firstCornerEnd.x() - bounds.left(), start.y() - bounds.top());
    QPainterPath rounded;
    rounded.addRoundedRect(bounds, radii.width(), radii.height());
    return qFuzzyCompare(start.x(), bounds.left()) && rounded == path ? radii : QSizeF();
}

} // namespace

class RecordingEngine : public QPaintEngine
{
public:
    RecordingEngine()
        : QPaintEngine(AllFeatures)
    {}

    QVector<PaintStep> steps;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {} // add() asks the painter

    void drawLines(const QLineF* lines, int count) override
    {
        for (const QLineF* line = lines; line != lines + count; ++line)
            add(PaintStep::Line).points << line->p1() << line->p2();
    }
    using QPaintEngine::drawLines;

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        PaintStep& step = add(mode == PolylineMode ? PaintStep::Polyline : PaintStep::Path);
        std::copy(points, points + count, std::back_inserter(step.points));
        step.rect = step.points.boundingRect();
    }
    using QPaintEngine::drawPolygon;

    void drawPath(const QPainterPath& path) override
    {
        const QSizeF radii = roundedRectRadii(path);
        PaintStep& step = add(radii.isEmpty() ? PaintStep::Path : PaintStep::RoundedRect);
        step.radii = radii;
        step.rect = path.boundingRect();
    }

    void drawTextItem(const QPointF& baseline, const QTextItem& item) override
    {
        PaintStep& step = add(PaintStep::Text);
        step.points << baseline;
        step.text = item.text();
        step.width = item.width();
        step.font = item.font();
    }

    void drawPixmap(const QRectF& rect, const QPixmap& pixmap, const QRectF&) override
    {
        PaintStep& step = add(PaintStep::Pixmap);
        step.rect = rect;
        step.pixmap = pixmap;
    }

private:
    PaintStep& add(PaintStep::Kind kind)
    {
        const QPainter* p = painter();
        PaintStep step;
        step.kind = kind;
        step.pen = p->pen();
        step.brush = p->brush();
        step.font = p->font();
        step.transform = p->deviceTransform();
        step.hints = p->renderHints();
        step.clip = p->hasClipping() ? p->clipBoundingRect() : QRectF();
        steps.append(step);
        return steps.last();
    }
};

RecordingDevice::RecordingDevice(QSize size, int devicePixelRatio)
    : QImage(size, Format_RGB32)
    , m_engine(std::make_unique<RecordingEngine>())
{
    setDevicePixelRatio(devicePixelRatio);
}

RecordingDevice::~RecordingDevice() = default;

const QVector<PaintStep>& RecordingDevice::steps() const
{
    return m_engine->steps;
}

QVector<PaintStep> RecordingDevice::stepsOf(PaintStep::Kind kind) const
{
    QVector<PaintStep> found;
    for (const PaintStep& step : m_engine->steps) {
        if (step.kind == kind)
            found << step;
    }
    return found;
}

QStringList RecordingDevice::texts() const
{
    QStringList found;
    for (const PaintStep& step : stepsOf(PaintStep::Text))
        found << step.text;
    return found;
}

QPaintEngine* RecordingDevice::paintEngine() const
{
    return m_engine.get();
}

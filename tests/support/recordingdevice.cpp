#include "recordingdevice.h"

#include <QPaintEngine>

namespace
{

constexpr int kDotsPerInch = 96;
constexpr qreal kMillimetresPerInch = 25.4;

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
    {
    }

    QVector<PaintStep> steps;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& state) override
    {
        const DirtyFlags dirty = state.state();
        if (dirty & DirtyPen)
            m_state.pen = state.pen();
        if (dirty & DirtyBrush)
            m_state.brush = state.brush();
        if (dirty & DirtyFont)
            m_state.font = state.font();
        if (dirty & DirtyTransform)
            m_state.transform = state.transform();
        if (dirty & DirtyHints)
            m_state.hints = state.renderHints();
        if (dirty & DirtyOpacity)
            m_state.opacity = state.opacity();
        if (dirty & (DirtyClipPath | DirtyClipRegion | DirtyClipEnabled)) {
            m_state.hasClip = state.isClipEnabled() && painter()->hasClipping();
            m_state.clip = m_state.hasClip ? painter()->clipBoundingRect() : QRectF();
        }
    }

    void drawLines(const QLineF* lines, int count) override
    {
        for (const QLineF* line = lines; line != lines + count; ++line)
            add(PaintStep::Line).points << line->p1() << line->p2();
    }
    using QPaintEngine::drawLines;

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        PaintStep& step = add(mode == PolylineMode ? PaintStep::Polyline : PaintStep::Polygon);
        std::copy(points, points + count, std::back_inserter(step.points));
    }
    using QPaintEngine::drawPolygon;

    void drawPoints(const QPointF* points, int count) override
    {
        PaintStep& step = add(PaintStep::Points);
        std::copy(points, points + count, std::back_inserter(step.points));
    }
    using QPaintEngine::drawPoints;

    void drawRects(const QRectF* rects, int count) override
    {
        for (const QRectF* rect = rects; rect != rects + count; ++rect)
            add(PaintStep::Rect).rect = *rect;
    }
    using QPaintEngine::drawRects;

    void drawEllipse(const QRectF& rect) override { add(PaintStep::Ellipse).rect = rect; }
    using QPaintEngine::drawEllipse;

    void drawPath(const QPainterPath& path) override
    {
        const QSizeF radii = roundedRectRadii(path);
        PaintStep& step = add(radii.isEmpty() ? PaintStep::Path : PaintStep::RoundedRect);
        step.radii = radii;
        step.path = path;
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

    void drawPixmap(const QRectF& rect, const QPixmap& pixmap, const QRectF& source) override
    {
        PaintStep& step = add(PaintStep::Pixmap);
        step.rect = rect;
        step.pixmap = pixmap;
        step.source = source;
    }

    void drawTiledPixmap(const QRectF& rect, const QPixmap& pixmap, const QPointF&) override
    {
        PaintStep& step = add(PaintStep::TiledPixmap);
        step.rect = rect;
        step.pixmap = pixmap;
    }

private:
    PaintStep& add(PaintStep::Kind kind)
    {
        steps.append(m_state);
        steps.last().kind = kind;
        return steps.last();
    }

    PaintStep m_state; // the painter's state now; its kind and geometry stay unset
};

RecordingDevice::RecordingDevice(QSize size, int devicePixelRatio)
    : m_size(size)
    , m_devicePixelRatio(devicePixelRatio)
    , m_engine(std::make_unique<RecordingEngine>())
{
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

QVector<PaintStep> RecordingDevice::textsOf(const QString& text) const
{
    QVector<PaintStep> found;
    for (const PaintStep& step : stepsOf(PaintStep::Text)) {
        if (step.text == text)
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

void RecordingDevice::clear()
{
    m_engine->steps.clear();
}

QPaintEngine* RecordingDevice::paintEngine() const
{
    return m_engine.get();
}

int RecordingDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmWidthMM:
        return qRound(m_size.width() * kMillimetresPerInch / kDotsPerInch);
    case PdmHeightMM:
        return qRound(m_size.height() * kMillimetresPerInch / kDotsPerInch);
    case PdmNumColors:
        return 0; // as for every true-colour device
    case PdmDepth:
        return 32;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return kDotsPerInch;
    case PdmDevicePixelRatio:
        return m_devicePixelRatio;
    case PdmDevicePixelRatioScaled:
        return qRound(m_devicePixelRatio * devicePixelRatioFScale());
    }
    return 0;
}

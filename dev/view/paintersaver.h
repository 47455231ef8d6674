#ifndef DEVVIEW_PAINTERSAVER_H
#define DEVVIEW_PAINTERSAVER_H

// Leaves a painter as it was found, whichever way a paint step ends.
// May touch: Qt Gui.

#include <QPainter>

class PainterSaver
{
public:
    explicit PainterSaver(QPainter* painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~PainterSaver() { m_painter->restore(); }
    Q_DISABLE_COPY(PainterSaver)

private:
    QPainter* m_painter;
};

#endif // DEVVIEW_PAINTERSAVER_H

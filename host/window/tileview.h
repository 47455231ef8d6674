#ifndef TILEVIEW_H
#define TILEVIEW_H

// Tiles of one size in rows; each group of devices begins a row of its own, below its name.
// May touch: the sorted device list.

#include "window/devicesortmodel.h"

#include <QListView>

class TileView : public QListView
{
    Q_OBJECT

public:
    // The model must outlive the view.
    explicit TileView(const DeviceSortModel& sorted, QWidget* parent = nullptr);

    // What all tiles take up, in rows of that many; px.
    static int heightOf(const QVector<DeviceSection>& sections, int columns, int tileHeight,
                        const QFontMetrics& metrics);

    void doItemsLayout() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Heading {
        QString text;
        int top; // px of the contents
    };

    const DeviceSortModel& m_sorted;
    QVector<Heading> m_headings;
};

#endif // TILEVIEW_H

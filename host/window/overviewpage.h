#ifndef OVERVIEWPAGE_H
#define OVERVIEWPAGE_H

// All devices as tiles, the most urgent first; or group by group, the most urgent of each first.
// May touch: the device list model.

#include "window/devicesortmodel.h"

#include <QWidget>

class Device;
class DeviceListModel;
class DeviceTileDelegate;
class QLabel;
class TileView;

class OverviewPage : public QWidget
{
    Q_OBJECT

public:
    explicit OverviewPage(DeviceListModel& model, QWidget* parent = nullptr);

    // Between these the tiles grow while all of them find room; at a desk 1 and 1.25.
    void setScales(double least, double largest);
    // The line of counts above the tiles; shown unless somebody else shows it larger.
    void setCountsShown(bool shown);
    // Each group in rows of its own, or all devices together.
    void showGroups(bool on);
    // Scrolls to the rows below those on show; after the last ones to the first.
    void showNextRows();
    // Shows the devices that the text is found in.
    void setFilter(const QString& text);
    // Time has passed: ages have grown.
    void refreshAge();

signals:
    void deviceChosen(Device* device);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct FormRow;
    static const FormRow kForms[];

    void setUpTiles();
    void showCounts();
    void fitTiles();
    void fitTilesToSections();
    double bestScale(const FormRow& row, int& columns) const;
    void setTiles(const FormRow& row, int columns, double scale);
    int roomForTiles() const;
    double scaleThatFits(int columns, int height, double least, double largest) const;

    DeviceListModel& m_model;
    DeviceSortModel* m_sorted;
    DeviceTileDelegate* m_delegate;
    TileView* m_tiles;
    QLabel* m_counts;
    QLabel* m_nothing;
    double m_leastScale = 1;
    double m_largestScale = 1.25;
    QVector<DeviceSection> m_fitted; // that the size of the tiles is for
};

#endif // OVERVIEWPAGE_H

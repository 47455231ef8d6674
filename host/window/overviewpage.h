#ifndef OVERVIEWPAGE_H
#define OVERVIEWPAGE_H

// All devices as tiles, the most urgent first.
// May touch: the device list model.

#include <QWidget>

class Device;
class DeviceListModel;
class DeviceSortModel;
class DeviceTileDelegate;
class QLabel;
class QListView;

class OverviewPage : public QWidget
{
    Q_OBJECT

public:
    explicit OverviewPage(DeviceListModel& model, QWidget* parent = nullptr);

    // How much larger than at a desk the tiles may grow while all of them find room; at least 1.
    void setLargestScale(double scale);
    // The line of counts above the tiles; shown unless somebody else shows it larger.
    void setCountsShown(bool shown);
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
    void showCounts();
    void fitTiles();
    void fitTilesToCount();
    bool fitTilesOf(int form, double largestScale);

    DeviceListModel& m_model;
    DeviceSortModel* m_sorted;
    DeviceTileDelegate* m_delegate;
    QListView* m_tiles;
    QLabel* m_counts;
    QLabel* m_nothing;
    double m_largestScale = 1.25;
    int m_fittedCount = 0; // devices that the size of the tiles is for
};

#endif // OVERVIEWPAGE_H

#ifndef TRENDLEGEND_H
#define TRENDLEGEND_H

// The legend above a trend chart with two scales: a row of entries for each scale, every entry in
// its curve's colour. Inside the library only.
// May touch: Qt Widgets.

#include <QWidget>

class QGridLayout;
class QLabel;

class TrendLegend : public QWidget
{
    Q_OBJECT

public:
    // The names are object names, by which style sheets and tests find the parts.
    TrendLegend(const char* leftScaleName, const char* rightScaleName, QWidget* parent);

    struct Entry {
        QLabel* caption;
        QLabel* value;
    };
    // For series 0 to 5; the first three are on the left scale.
    Entry add(int series, const QString& captionName, const char* valueName,
              const QString& lineName);

private:
    QGridLayout* m_grid;
};

#endif // TRENDLEGEND_H

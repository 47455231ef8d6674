#ifndef PLUGINRANGE_H
#define PLUGINRANGE_H

// The ranges by which monitoring plug-ins are told when to warn.
// May touch: Qt Core.

#include <QString>

#include <limits>
#include <optional>

//  10 is 0 to 10   10: is 10 and more   ~:10 is 10 and less   10:20 is both ends and between
// A value outside warns; with @ in front, one inside.
struct PluginRange {
    double low = 0;
    double high = std::numeric_limits<double>::infinity();
    bool alertsInside = false;
    QString text; // as given

    bool alerts(double value) const { return (value >= low && value <= high) == alertsInside; }
};

// Nothing for a text that is no range.
std::optional<PluginRange> parsePluginRange(const QString& text);

#endif // PLUGINRANGE_H

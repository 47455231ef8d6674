#include "cli/pluginrange.h"

#include <QRegularExpression>

std::optional<PluginRange> parsePluginRange(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(@?)(?:(~|-?\\d{1,9}(?:\\.\\d{1,9})?):)?(-?\\d{1,9}(?:\\.\\d{1,9})?)?$"));
    const auto match = pattern.match(text);
    const QString low = match.captured(2);
    const QString high = match.captured(3);
    if (!match.hasMatch() || (low.isEmpty() && high.isEmpty()))
        return {};
    PluginRange range;
    range.text = text;
    range.alertsInside = !match.captured(1).isEmpty();
    if (low == QLatin1String("~"))
        range.low = -std::numeric_limits<double>::infinity();
    else if (!low.isEmpty())
        range.low = low.toDouble();
    if (!high.isEmpty())
        range.high = high.toDouble();
    return range.low <= range.high ? std::optional(range) : std::nullopt;
}

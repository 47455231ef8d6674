#include "valuetext.h"

namespace valuetext {

QString outOfRange()
{
    return QStringLiteral("--");
}

QString whole(int value)
{
    return QString::number(value);
}

QString oneDecimal(double value)
{
    return QString::asprintf("%.1f", value);
}

QString tenths(int tenthsOfUnit)
{
    return oneDecimal(tenthsOfUnit / 10.0);
}

QString joined(const QString& a, const QString& b, const QString& c)
{
    return a + QLatin1Char('/') + b + QLatin1Char('/') + c;
}

} // namespace valuetext

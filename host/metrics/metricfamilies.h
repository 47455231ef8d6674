#ifndef METRICFAMILIES_H
#define METRICFAMILIES_H

// Devices as families of Prometheus metrics, in base units. What a device did not give is left
// out, and the values of a device that is not live are left out too: an old value is no value.
// May touch: readings, the metrics library. Pure functions, no socket.

#include "metrics/devicemetrics.h"

#include <prometheus/metric_family.h>

#include <vector>

// nowBootMs: of the clock that DeviceMetrics::readAtBootMs was read from.
std::vector<prometheus::MetricFamily> metricFamilies(const std::vector<DeviceMetrics>& devices,
                                                     qint64 nowBootMs);

#endif // METRICFAMILIES_H

#include "trendchart.h"

TrendChart::TrendChart(QWidget* parent) : QWidget(parent) {}

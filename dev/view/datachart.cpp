#include "datachart.h"

DataChart::DataChart(QWidget* parent) : QWidget(parent) {}

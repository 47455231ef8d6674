#include "dynamicchart.h"

DynamicChart::DynamicChart(QWidget* parent) : QWidget(parent) {}

#include "threedynamicchart.h"

ThreeDynamicChart::ThreeDynamicChart(QWidget* parent) : QWidget(parent) {}

#include "threedynamicchart.h"

ThreeDynamicChart::ThreeDynamicChart(QWidget* parent)
    : TrendChart({{{QColor(255, 255, 0), 400.0},
                   {QColor(0, 255, 0), 400.0},
                   {QColor(255, 0, 0), 400.0},
                   {QColor(255, 221, 26), 100.0},
                   {QColor(85, 170, 0), 100.0},
                   {QColor(170, 0, 0), 100.0}},
                  "background-color: rgb(222, 237, 253);",
                  false,
                  true},
                 parent)
{}

#include "dynamicchart.h"

DynamicChart::DynamicChart(QWidget* parent)
    : TrendChart({{{QColor(255, 0, 255), 400.0},
                   {QColor(0, 255, 0), 400.0},
                   {QColor(0, 255, 255), 400.0},
                   {QColor(255, 0, 0), 400.0}},
                  "background-color: rgb(250, 250, 250);",
                  true,
                  false},
                 parent)
{}

#include "energyline.h"

Energyline::Energyline(QWidget* parent) : QWidget(parent) {}

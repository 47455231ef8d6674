#include "chartform.h"

ChartForm::ChartForm(QWidget* parent) : QWidget(parent) {}

#include "rtsinglegraphform.h"

RTSingleGraphForm::RTSingleGraphForm(QWidget* parent) : QWidget(parent) {}

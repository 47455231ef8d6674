#include "rtdataform.h"

RTDataForm::RTDataForm(QWidget* parent) : QWidget(parent) {}

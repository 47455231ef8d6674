#include "setinfoform.h"

SetInfoForm::SetInfoForm(QWidget* parent) : QWidget(parent) {}

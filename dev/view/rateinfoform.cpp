#include "rateinfoform.h"

RateInfoForm::RateInfoForm(QWidget* parent) : QWidget(parent) {}

#include "rtthreegraphform.h"

RTThreeGraphForm::RTThreeGraphForm(QWidget* parent) : QWidget(parent) {}

#include "rteventform.h"

RTEventForm::RTEventForm(QWidget* parent) : QWidget(parent) {}

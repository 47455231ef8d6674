#include "msgbox.h"

MsgBox::MsgBox(int, QString) {}

#ifndef PICTURE_H
#define PICTURE_H

// upsdesk picture ADDRESS --out DIR: one PNG per page, with or without a display.
// May touch: the window room and connectors by their base class.

#include <QStringList>

int runPicture(const QStringList& arguments);

#endif // PICTURE_H

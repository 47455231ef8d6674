#ifndef OPENFILELIMIT_H
#define OPENFILELIMIT_H

// How many files and sockets this process may open.
// May touch: the limits of the process.

// Raises the limit as far as the system lets a user do it. Thousands of devices fit in then.
void raiseOpenFileLimit();

#endif // OPENFILELIMIT_H

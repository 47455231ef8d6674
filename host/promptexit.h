#ifndef PROMPTEXIT_H
#define PROMPTEXIT_H

// The end of the process, whatever still waits for a server.
// May touch: the process.

// Returns the code, for main() to return: should the process then take longer than half a second to
// end, it is ended with that code. The toolkit waits at its own end for every name that is still
// being looked up, and a dead name server takes half a minute to be given up.
int endPromptly(int code);

#endif // PROMPTEXIT_H

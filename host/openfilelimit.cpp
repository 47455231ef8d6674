#include "openfilelimit.h"

#include <sys/resource.h>

void raiseOpenFileLimit()
{
    rlimit files{};
    if (getrlimit(RLIMIT_NOFILE, &files) != 0 || files.rlim_cur >= files.rlim_max)
        return;
    files.rlim_cur = files.rlim_max;
    setrlimit(RLIMIT_NOFILE, &files);
}

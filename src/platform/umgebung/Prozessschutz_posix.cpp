#include "platform/umgebung/Prozessschutz.h"

#include <sys/prctl.h>
#include <sys/resource.h>

void verhindereSpeicherabbilder()
{
    const rlimit nichts{0, 0};
    static_cast<void>(setrlimit(RLIMIT_CORE, &nichts));
    // the limit alone does not hold for a system that hands the image to a program
    static_cast<void>(prctl(PR_SET_DUMPABLE, 0));
}

#include "platform/umgebung/Prozessschutz.h"

#include <windows.h>

void verhindereSpeicherabbilder()
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
}

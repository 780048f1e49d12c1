#include "ablauf/Mappendatei.h"

#include "umgebung/Szenarioumgebung.h"

#ifdef SZENARIO_CALC
#include "platform/calc/Mappenschreiber.h"
#endif

void schreibeMappendatei(const Arbeitsmappe& mappe, const std::filesystem::path& ziel)
{
#ifdef SZENARIO_CALC
    std::filesystem::create_directories(ziel.parent_path());
    schreibeXlsx(mappe, ziel);
#else
    static_cast<void>(mappe);
    throw Scheitern("eine .xlsx-Datei für " + ziel.filename().string(), "ein Bau ohne libxlsxwriter");
#endif
}

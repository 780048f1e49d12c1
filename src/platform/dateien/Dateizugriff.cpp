#include "platform/dateien/Dateien.h"
#include "platform/dateien/Systemgrund.h"

#include <algorithm>

namespace fs = std::filesystem;

bool Dateizugriff::istDatei(const fs::path& pfad)
{
    std::error_code fehler;
    return fs::is_regular_file(pfad, fehler);
}

bool Dateizugriff::istOrdner(const fs::path& pfad)
{
    std::error_code fehler;
    return fs::is_directory(pfad, fehler);
}

std::vector<fs::path> Dateizugriff::dateienIn(const fs::path& ordner)
{
    std::vector<fs::path> namen;
    std::error_code fehler;
    for (fs::directory_iterator ort(ordner, fehler), ende; !fehler && ort != ende; ort.increment(fehler)) {
        if (!ort->is_directory()) {
            namen.push_back(ort->path().filename());
        }
    }
    if (fehler) {
        throw Dateifehler(systemgrund(fehler));
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

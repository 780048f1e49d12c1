#include "platform/dateien/Pfadkunde.h"

#include "platform/dateien/Systemgrund.h"
#include "platform/text/Text.h"

#include <algorithm>

namespace fs = std::filesystem;

std::vector<fs::path> listeNamen(const fs::path& ordner, bool sindOrdner)
{
    std::vector<fs::path> namen;
    std::error_code fehler;
    for (fs::directory_iterator ort(ordner, fehler), ende; !fehler && ort != ende; ort.increment(fehler)) {
        std::error_code verweisInsLeere;
        if (ort->is_directory(verweisInsLeere) == sindOrdner) {
            namen.push_back(ort->path().filename());
        }
    }
    if (fehler) {
        throw Dateifehler(systemgrund(fehler));
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

Fund fundAn(const fs::path& pfad)
{
    std::error_code fehler;
    const auto art = fs::status(pfad, fehler).type();
    switch (art) {
    case fs::file_type::not_found:
        if (fs::is_symlink(fs::symlink_status(pfad, fehler))) {
            throw Dateifehler(std::string("der Verweis führt auf etwas, das nicht da ist"_t));
        }
        return Fund::Nichts;
    case fs::file_type::regular:
        return Fund::Datei;
    case fs::file_type::directory:
        return Fund::Ordner;
    case fs::file_type::none:
    case fs::file_type::unknown:
        throw Dateifehler(systemgrund(fehler));
    default:
        return Fund::Anderes;
    }
}

bool istNameVergeben(const fs::path& pfad)
{
    std::error_code fehler;
    return fs::exists(fs::symlink_status(pfad, fehler));
}

fs::path endeDerVerweise(const fs::path& pfad)
{
    std::error_code fehler;
    if (!fs::is_symlink(fs::symlink_status(pfad, fehler))) {
        return pfad;
    }
    auto ende = fs::canonical(pfad, fehler);
    if (fehler) {
        throw Dateifehler(systemgrund(fehler));
    }
    return ende;
}

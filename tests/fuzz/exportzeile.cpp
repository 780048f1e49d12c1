// Whatever stands in the records, a row of the export keeps its number of columns.

#include "fuzz/Stummeumgebung.h"

#include "export/Diagnosezeile.h"
#include "export/Kernzeile.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moData.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

/// Columns that no stored text can add to: every text without a semicolon of its own.
void prüfe(const std::string& zeile, std::string_view sätze, std::ptrdiff_t spalten)
{
    const bool eigene = sätze.find(';') != std::string_view::npos;
    if (!eigene && std::count(zeile.begin(), zeile.end(), ';') != spalten) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t länge)
{
    static Stummeumgebung umgebung;
    static Zustand zustand(umgebung);
    static const Zustandsplatz platz(zustand);
    static const bool katalog = (baueProblemKatalog(), true);
    static_cast<void>(katalog);

    const std::string_view sätze(reinterpret_cast<const char*>(bytes), länge);
    const auto klient = sätze.substr(0, länge / 3);
    const auto rest = sätze.substr(länge / 3);
    try {
        prüfe(erstelleKernZeile(klient, rest, {}, zustand.bestandsmeldung), sätze, 181);
        prüfe(erstelleDiagZeile(klient, rest, {}, zustand.bestandsmeldung), sätze, 177);
    } catch (const Laufzeitfehler&) {
        return länge > 32767 ? 0 : (std::abort(), 0);
    }
    return 0;
}

// Whatever stands in the records, a row of the export keeps its number of columns.

#include "fuzz/Stummeumgebung.h"

#include "export/Exportsaetze.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Satzgrenzen.h"
#include "satz/moData.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>

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
        prüfe(kernzeile(klient, rest, zustand.bestandsmeldung), sätze, std::ssize(kernspalten()));
        prüfe(diagnosezeile(klient, rest, zustand.bestandsmeldung), sätze, std::ssize(diagnosespalten()));
    } catch (const Laufzeitfehler&) {
        return länge > satzgrenze::zeilenlänge ? 0 : (std::abort(), 0);
    }
    return 0;
}

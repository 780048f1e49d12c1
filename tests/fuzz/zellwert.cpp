// A cell of the text type keeps its text; one of the general type that became a number or a date reads as itself again.

#include "platform/mappe/Zellwert.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t länge)
{
    const std::string_view text(reinterpret_cast<const char*>(bytes), länge);
    const auto alsTextzelle = leseZelle(text, Zelltyp::Text);
    if (alsTextzelle.art != Zellart::Leer && alsTextzelle.art != Zellart::Text) {
        std::abort();
    }
    const auto wert = leseZelle(text, Zelltyp::Allgemein);
    if (wert.art == Zellart::Zahl || wert.art == Zellart::Datum) {
        const auto gezeigt = alsAnzeigetext(wert);
        if (leseZelle(gezeigt, Zelltyp::Allgemein).art != wert.art && gezeigt.size() <= 15) {
            std::abort();
        }
    }
    return 0;
}

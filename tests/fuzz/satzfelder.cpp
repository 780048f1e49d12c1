// Replacing a field changes that field and no other.

#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t länge)
{
    if (länge < 1) {
        return 0;
    }
    const int nummer = 2 + bytes[0] % 20;
    const std::string_view zeile(reinterpret_cast<const char*>(bytes + 1), länge - 1);
    try {
        const int anzahl = anzahlFelder(zeile);
        if (nummer > anzahl) {
            return 0;
        }
        const auto neu = ersetzeFeld(zeile, nummer, "neu");
        for (int feld = 1; feld <= anzahl; ++feld) {
            if (getFeld(neu, feld) != (feld == nummer ? "neu" : getFeld(zeile, feld))) {
                std::abort();
            }
        }
    } catch (const Laufzeitfehler&) {
        return 0;
    }
    return 0;
}

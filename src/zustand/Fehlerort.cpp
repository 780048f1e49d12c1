#include "zustand/Fehlerort.h"

#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"
#include "satz/moHelferlein.h"
#include "zustand/Zustand.h"

namespace {

[[noreturn]] void wirfMitOrt(std::string_view ort, int feld, const Laufzeitfehler& fehler)
{
    throw Laufzeitfehler(verbinde(ort, ", Feld "_t, std::to_string(feld), ": "_t, fehler.text()));
}

bool istLesbaresDatum(std::string_view datum)
{
    try {
        return vergleicheDatum(datum, "<="_t, datum);
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace

void mitSatzort(Tabelle tabelle, const Satzschlüssel& schlüssel, int feld, const std::function<void()>& tue)
{
    try {
        tue();
    } catch (const Laufzeitfehler& fehler) {
        wirfMitOrt(zustand().bestand.ortVon(tabelle, schlüssel), feld, fehler);
    }
}

void mitDatumsort(std::int32_t kernID, const std::function<void()>& tue)
{
    try {
        tue();
    } catch (const Laufzeitfehler& fehler) {
        const auto& bestand = zustand().bestand;
        const auto& pfad = bestand.pfade().betrDat;
        bestand.laufe(Tabelle::Betr, [&](std::string_view zeile, std::size_t nummer) {
            const bool istSeine = leseSchlüssel(zeile, feld::betr::kernID, 16, pfad, nummer) == kernID;
            for (const int feld : {feld::betr::beginn, feld::betr::ende}) {
                const auto datum = getFeld(zeile, feld);
                const bool istOffen = feld == feld::betr::ende && datum == "offen"_t;
                if (istSeine && !istOffen && !istLesbaresDatum(datum)) {
                    wirfMitOrt(ortsangabe(pfad, nummer), feld, fehler);
                }
            }
            return true;
        });
        throw;
    }
}

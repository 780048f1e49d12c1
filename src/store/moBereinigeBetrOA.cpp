#include "store/moBereinigeBetrOA.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "store/Reparatur.h"
#include "store/Tabellenleser.h"
#include "satz/moHelferlein.h"
#include "zustand/Zustand.h"

#include <unordered_map>

namespace {

constexpr int statusfeld = 3;
constexpr char offen = 'o';
constexpr char abgeschlossen = 'a';
constexpr char ohneBetreuung = '\0';

using Statustafel = std::unordered_map<std::int32_t, char>;

/// The number in the field; nothing for a line that can't be read.
std::optional<std::int32_t> nummerIn(std::string_view zeile, int feld)
{
    try {
        return leseGanzzahl32(getFeld(zeile, feld));
    } catch (const Laufzeitfehler&) {
        return std::nullopt;
    }
}

Statustafel statusAusBetreuungen(std::string_view betreuungen)
{
    Statustafel tafel;
    Zeilen zeilen(betreuungen);
    while (const auto zeile = zeilen.nächste()) {
        const auto kernID = nummerIn(*zeile, 1);
        if (!kernID) {
            continue;
        }
        auto& status = tafel[*kernID];
        if (status != offen) {
            status = getFeld(*zeile, 4) == "offen"_t ? offen : abgeschlossen;
        }
    }
    return tafel;
}

std::string mitStatus(std::string_view zeile, const Statustafel& tafel)
{
    const auto kernID = nummerIn(zeile, 2);
    if (!kernID || anzahlFelder(zeile) < statusfeld) {
        return std::string(zeile);
    }
    const auto ort = tafel.find(*kernID);
    return ersetzeFeld(zeile, statusfeld, verbinde(ort == tafel.end() ? ohneBetreuung : ort->second));
}

void schreibeStatus()
{
    const auto& pfade = zustand().pfade;
    auto klienten = öffneTabelle(pfade.kernDat);
    const auto tafel = statusAusBetreuungen(öffneTabelle(pfade.betrDat)->text());
    zustand().umgebung.dateien().ersetze(pfade.kernDat, reparaturdatei(), [&](Schreiber& schreiber) {
        Zeilen zeilen(klienten->text());
        while (const auto zeile = zeilen.nächste()) {
            schreiber.zeile(mitStatus(*zeile, tafel));
        }
        klienten.reset();
    });
}

/// What a failed repair leaves behind holds personal data.
void entferneArbeitsdatei()
{
    auto& dateien = zustand().umgebung.dateien();
    try {
        if (dateien.istDatei(reparaturdatei())) {
            dateien.lösche(reparaturdatei());
        }
    } catch (const Laufzeitfehler&) {
        // the next start tries again
    }
}

} // namespace

void bereinigeBetrOA()
{
    try {
        schreibeStatus();
    } catch (const Laufzeitfehler&) {
        entferneArbeitsdatei();
    }
}

#include "satz/Diagnosefelder.h"

#include "platform/text/Text.h"
#include "satz/Exportspalten.h"
#include "satz/Feldreihe.h"

// The groups have no names of their own per field; the headers build theirs from the catalogue.

namespace {

Feldreihe namenlos(Spalten spalten, Feldart art, Werteliste werte = {})
{
    return {{}, einzeln, spalten, art, werte, {}};
}

Spalten gemeinsameSpalte(Feldart art)
{
    switch (art) {
    case Feldart::hdAlter:
        return {'D', exportspalte::diag::alterErstkonsum, true};
    case Feldart::icd0000:
        return {'D', exportspalte::diag::hauptdiagnose, true};
    default:
        return ohneSpalte;
    }
}

void hängeGruppenAn(std::vector<Feldreihe>& reihen, const Gruppenreihe& gruppen)
{
    int spalte = gruppen.ersteSpalte;
    for (int gruppe = gruppen.von; gruppe <= gruppen.bis; ++gruppe) {
        for (const auto& frage : gruppen.fragen) {
            reihen.push_back(namenlos(frage.eigeneSpalte ? Spalten{'D', spalte++} : gemeinsameSpalte(frage.art),
                                      frage.art, frage.werte));
        }
    }
}

} // namespace

std::vector<Feldreihe> diagnosereihen()
{
    std::vector<Feldreihe> reihen;
    reihen.push_back({"kernID"_t, einzeln, ohneSpalte, Feldart::idKern, {}, ""_t});
    reihen.push_back({"betrID"_t, einzeln, ohneSpalte, Feldart::idBetr, {}, ""_t});
    for (const auto& gruppen : gruppenreihen) {
        hängeGruppenAn(reihen, gruppen);
    }
    for (const auto& art : diagnosearten) {
        reihen.push_back({art.stamm, {1, art.anzahl}, {'D', art.ersteSpalte}, art.art, {}, ""_t});
    }
    reihen.push_back(namenlos(ohneSpalte, Feldart::leer)); // bit field of the groups
    return reihen;
}

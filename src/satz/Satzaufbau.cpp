#include "satz/Satzaufbau.h"

#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Exportspalten.h"
#include "satz/Klientenfelder.h"
#include "satz/moNationen.h"

#include <algorithm>

namespace {

Satzfeld feldAus(const Feldreihe& reihe, int versatz)
{
    const auto& spalten = reihe.spalten;
    const bool istEinzeln = reihe.nummern.bis < reihe.nummern.von;
    const bool zähltWeiter = spalten.blatt != 0 && !spalten.gemeinsam;
    const auto nummer = istEinzeln ? std::string() : std::to_string(reihe.nummern.von + versatz);
    return {.name = verbinde(reihe.stamm, nummer),
            .art = reihe.art,
            .blatt = spalten.blatt,
            .spalte = spalten.erste + (zähltWeiter ? versatz : 0),
            .werte = reihe.werte,
            .vorgabe = std::string(reihe.vorgabe)};
}

/// The fields of the runs, one by one.
std::vector<Satzfeld> entfalte(std::span<const Feldreihe> reihen)
{
    std::vector<Satzfeld> felder;
    for (const auto& reihe : reihen) {
        for (int versatz = 0; versatz < reihe.anzahl(); ++versatz) {
            felder.push_back(feldAus(reihe, versatz));
        }
    }
    return felder;
}

/// The fields of a block have no names; the headers build theirs from the catalogue.
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

/// The runs of the diagnosis record, made of the kinds of its groups.
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

std::string verbindeVorgaben(const std::vector<Satzfeld>& felder)
{
    std::string satz;
    for (const auto& feld : felder) {
        if (&feld != &felder.front()) {
            satz.push_back(trenner);
        }
        satz.append(feld.vorgabe);
    }
    return satz;
}

} // namespace

const std::vector<Satzfeld>& klientenfelder()
{
    static const std::vector<Satzfeld> felder = entfalte(kliententabelle::reihen);
    return felder;
}

const std::vector<Satzfeld>& betreuungsfelder()
{
    static const std::vector<Satzfeld> felder = entfalte(betreuungstabelle::reihen);
    return felder;
}

const std::vector<Satzfeld>& diagnosefelder()
{
    static const std::vector<Satzfeld> felder = entfalte(diagnosereihen());
    return felder;
}

int betreuungsfeld(std::string_view name)
{
    const auto& felder = betreuungsfelder();
    const auto ort = std::ranges::find(felder, name, &Satzfeld::name);
    return ort == felder.end() ? 0 : static_cast<int>(ort - felder.begin()) + 1;
}

std::string erstelleDefaultKernDS()
{
    // a delimiter too many: positions of new records have always been counted to 12, the twelfth is never read
    return verbindeVorgaben(klientenfelder()) + trenner;
}

std::string erstelleDefaultBetrDS()
{
    return verbindeVorgaben(betreuungsfelder());
}

std::string erstelleDefaultDiagDS()
{
    return verbindeVorgaben(diagnosefelder());
}

std::vector<std::string> auswahlliste(const Satzfeld& feld)
{
    if (const auto bereich = zahlenbereich(feld.art)) {
        return werte::zahlen(feld.vorgabe, *bereich);
    }
    if (feld.art != Feldart::nation) {
        return werte::texte(feld.werte);
    }
    std::vector<std::string> namen{feld.vorgabe};
    for (const auto& nation : nationen()) {
        namen.emplace_back(nation.name);
    }
    return namen;
}

std::optional<werte::Zahlenbereich> zahlenbereich(Feldart art)
{
    switch (art) {
    case Feldart::zuvor:
        return werte::maßnahmen;
    case Feldart::kinder:
        return werte::kinder;
    case Feldart::kontakte:
        return werte::kontakte;
    case Feldart::zahl:
        return werte::unterhalt;
    default:
        return std::nullopt;
    }
}

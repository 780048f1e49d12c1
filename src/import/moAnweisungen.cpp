#include "import/moAnweisungen.h"

#include "platform/text/Ressourcen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"

#include <algorithm>
#include <array>

namespace {

using Paare = std::vector<Feldanweisung::Paar>;

constexpr auto leer = "<leer>"_t;
constexpr auto sonst = "<sonst>"_t;
constexpr auto kA = antworttext::keine;

/// What a kind is called in the string form.
struct Typ {
    Feldart art;
    std::string_view name;
    std::string anmerkung{}; ///< expected form, for whoever reads the table; no rule
};

// A function, since one of the compilers ends on the table as an initialiser.
std::vector<Typ> macheTypen()
{
    const auto ziffern = verbinde('<', diagnosemuster.back(), '>');
    return {
        Typ{Feldart::idKern, "idKern"_t},
        Typ{Feldart::idBetr, "idBetr"_t},
        Typ{Feldart::datum, "datum"_t, verbinde("<NN.NN.NNNN>"_t, trenner, "<offen>"_t)},
        Typ{Feldart::option, "option"_t},
        Typ{Feldart::zuvor, "zuvor"_t, verbinde(kA, trenner, "<0..N>"_t)},
        Typ{Feldart::kinder, "kinder"_t, verbinde(kA, trenner, "<0.."_t, alsText(werte::kinder.bis), '>')},
        Typ{Feldart::zahl, "zahl"_t, std::string("<N>"_t)},
        Typ{Feldart::kontakte, "kontakte"_t, verbinde(kA, trenner, "<1-"_t, alsText(werte::kontakte.bis), '>')},
        Typ{Feldart::nation, "nation"_t, std::string("<XXX> "_t)},
        Typ{Feldart::hdOhne, "hdOhne"_t, std::string("<WAHR, FALSCH>"_t)},
        Typ{Feldart::ivKonsum, "ivKonsum"_t, std::string("<WAHR, FALSCH>"_t)},
        Typ{Feldart::hdAlter, "hdAlter"_t},
        Typ{Feldart::icd0000, "icd0000"_t},
        Typ{Feldart::icdPsy, "icdPsy"_t, ziffern},
        Typ{Feldart::icdNeu, "icdNeu"_t, ziffern},
        Typ{Feldart::text, "text"_t, verbinde("<?"_t, diagnosemuster.back(), '>')},
        Typ{Feldart::leer, leer},
        Typ{Feldart::memo, {}},
    };
}

/// Fields joined by the delimiter, padded with empty ones.
std::string alsZeile(const Feldanweisung& anweisung)
{
    static const auto typen = macheTypen();
    const auto& typ = *std::ranges::find(typen, anweisung.art, &Typ::art);
    const auto quelle = anweisung.blatt == 0 ? std::string() : verbinde(anweisung.blatt, alsText(anweisung.spalte));
    auto zeile = verbinde(quelle, trenner, typ.name);
    for (const auto& [ergebnis, code] : anweisung.paare) {
        zeile += verbinde(trenner, ergebnis, trenner, code);
    }
    if (anweisung.paare.empty() && !typ.anmerkung.empty()) {
        zeile += trenner + typ.anmerkung;
    }
    const auto gefüllte = 1 + std::ranges::count(zeile, trenner);
    return zeile.append(static_cast<std::size_t>(felderJeAnweisung - gefüllte), trenner);
}

/// The list's pairs without the older spellings, which nothing new is to be written with.
Paare paareAus(Werteliste liste)
{
    Paare paare;
    for (const auto& paar : liste) {
        if (!paar.frühere) {
            paare.push_back({std::string(paar.text), std::string(paar.code)});
        }
    }
    return paare;
}

/// The pairs of a care field: its value list, and the two lists that differ from it.
Paare betreuungspaare(const Satzfeld& feld)
{
    auto paare = paareAus(feld.werte);
    if (feld.hatListe(werte::betrGru)) {
        paare.insert(paare.begin(),
                     {std::string("keine Angaben"_t), {}}); // an empty column too is "keine Angaben" here
    }
    if (feld.hatListe(werte::schulden)) {
        const auto zweites = std::ranges::find(paare, "2", &Feldanweisung::Paar::code);
        zweites->ergebnis = "bis10.000 €"_t; // a slip that stays: no imported row carries the code
    }
    return paare;
}

void hängeCodesAn(Paare& paare, Werteliste liste)
{
    for (const auto& paar : liste) {
        paare.push_back({std::string(paar.code), std::string(paar.code)});
    }
}

/// The pairs of an `option` field of a problem area. An unused area holds empty fields, hence the results
/// "<leer>"; where the stored text is the code, the code stands on both sides.
Paare diagnosepaare(const Satzfeld& feld, bool istSubstanz)
{
    const std::string nichts(leer);
    Paare paare;
    if (feld.hatListe(werte::icdZusatz)) {
        paare = {{nichts, nichts}, {"0", "0"}};
        hängeCodesAn(paare, feld.werte);
    } else if (feld.hatListe(werte::essstörung)) {
        paare = {{nichts, "9"}};
        hängeCodesAn(paare, feld.werte);
    } else {
        // risky consumption of a substance is "k.A.", all other answers stay empty
        const bool istRiskant = istSubstanz && feld.hatListe(werte::kurz);
        paare = paareAus(feld.werte);
        paare.insert(paare.begin() + (istRiskant ? 1 : 0), {nichts, "0"});
    }
    return paare;
}

/// Of the areas that share a class of the catalogue, the older data's main diagnosis lands on this one.
constexpr std::array aufnehmende{1, 2, 6, 8, 10, 12, 15, 18, 19, 20, 21, 22, 23, 24, 29};

bool nimmtAuf(int gruppe)
{
    return std::ranges::find(aufnehmende, gruppe) != aufnehmende.end();
}

/// The codes of column 159 by which an area is the main diagnosis, with the result for each.
Paare hauptdiagnosepaare(int gruppe)
{
    const std::string& icd = aryICD.at(static_cast<std::size_t>(gruppe));
    const auto klasse = icd.substr(1, 2);
    const std::string ergebnis = nimmtAuf(gruppe) ? "1" : "0";
    Paare paare;
    const auto paar = [&](std::string_view code) { paare.push_back({ergebnis, std::string(code)}); };
    if (klasse == "63") {
        paar("630"_t);
    } else if (klasse == "55") {
        paar(verbinde(klasse, icd.back()));
    } else if (klasse == "50") {
        for (const auto& wert : werte::essstörung) {
            paar(verbinde(klasse, wert.code));
        }
        paar(klasse);
    } else {
        paar(verbinde(klasse, '1'));
        paar(verbinde(klasse, '2'));
        if (nimmtAuf(gruppe)) {
            paar(klasse);
        }
    }
    paare.push_back({"0", std::string(sonst)});
    return paare;
}

Feldanweisung anweisungZu(const Satzfeld& feld, Paare paare)
{
    return {.blatt = feld.blatt,
            .spalte = feld.spalte,
            .art = feld.art,
            .paare = std::move(paare),
            .vorgabe = feld.vorgabe};
}

Feldanweisung betreuungsanweisung(int nummer)
{
    const auto& feld = feldAus(betreuungsfelder(), nummer);
    return anweisungZu(feld, feld.art == Feldart::option ? betreuungspaare(feld) : Paare{});
}

Feldanweisung diagnoseanweisung(int nummer)
{
    const auto& feld = feldAus(diagnosefelder(), nummer);
    const int gruppe = feld::diag::gruppeVon(nummer);
    if (feld.art == Feldart::option) {
        return anweisungZu(feld, diagnosepaare(feld, istGruppe(gruppe, Gruppenart::Substanz)));
    }
    return anweisungZu(feld, feld.art == Feldart::icd0000 ? hauptdiagnosepaare(gruppe) : Paare{});
}

std::vector<Feldanweisung> alle(int anzahl, Feldanweisung (*anweisung)(int nummer))
{
    std::vector<Feldanweisung> anweisungen;
    for (int nummer = 1; nummer <= anzahl; ++nummer) {
        anweisungen.push_back(anweisung(nummer));
    }
    return anweisungen;
}

} // namespace

std::string_view schlageNach(const Feldanweisung& anweisung, std::string_view wert, std::string& ablage)
{
    for (const auto& [ergebnis, code] : anweisung.paare) {
        if (code == sonst) {
            return ergebnis == "<text>" ? wert : std::string_view(ergebnis);
        }
        if (code == wert) {
            return ergebnis == leer ? std::string_view{} : std::string_view(ergebnis);
        }
    }
    if (wert.empty()) {
        return {};
    }
    ablage = verbinde('\'', wert, "' nicht gefunden"_t);
    return ablage;
}

std::vector<Feldanweisung> betreuungsanweisungen()
{
    return alle(feld::betr::anzahl, betreuungsanweisung);
}

std::vector<Feldanweisung> diagnoseanweisungen()
{
    return alle(feld::diag::anzahl, diagnoseanweisung);
}

void registriereAnweisungen(Ressourcen& ressourcen)
{
    ressourcen.nimm({ressourceBetreuungsanweisungen, feld::betr::anzahl,
                     [](int zeile) { return alsZeile(betreuungsanweisung(zeile)); }});
    ressourcen.nimm({ressourceDiagnoseanweisungen, feld::diag::anzahl,
                     [](int zeile) { return alsZeile(diagnoseanweisung(zeile)); }});
}

#include "import/moAnweisungen.h"

#include "platform/text/Ressourcen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Satzaufbau.h"
#include "satz/moData.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Paare = std::vector<Wertepaar>; ///< result text, code

constexpr auto leer = "<leer>"_t;
constexpr auto sonst = "<sonst>"_t;
constexpr auto kA = "k.A."_t;

struct Typ {
    Feldart art;
    std::string_view name;
    std::array<std::string_view, 2> anmerkungen; ///< expected form, for whoever reads the table; no rule
};

constexpr std::array typen{
    Typ{Feldart::idKern, "idKern"_t, {}},
    Typ{Feldart::idBetr, "idBetr"_t, {}},
    Typ{Feldart::datum, "datum"_t, {"<NN.NN.NNNN>"_t, "<offen>"_t}},
    Typ{Feldart::option, "option"_t, {}},
    Typ{Feldart::zuvor, "zuvor"_t, {kA, "<0..N>"_t}},
    Typ{Feldart::kinder, "kinder"_t, {kA, "<0..98>"_t}},
    Typ{Feldart::zahl, "zahl"_t, {"<N>"_t, {}}},
    Typ{Feldart::kontakte, "kontakte"_t, {kA, "<1-999>"_t}},
    Typ{Feldart::nation, "nation"_t, {"<XXX> "_t, {}}},
    Typ{Feldart::hdOhne, "hdOhne"_t, {"<WAHR, FALSCH>"_t, {}}},
    Typ{Feldart::ivKonsum, "ivKonsum"_t, {"<WAHR, FALSCH>"_t, {}}},
    Typ{Feldart::hdAlter, "hdAlter"_t, {}},
    Typ{Feldart::icd0000, "icd0000"_t, {}},
    Typ{Feldart::icdPsy, "icdPsy"_t, {"<##.##>"_t, {}}},
    Typ{Feldart::icdNeu, "icdNeu"_t, {"<##.##>"_t, {}}},
    Typ{Feldart::text, "text"_t, {"<?##.##>"_t, {}}},
    Typ{Feldart::leer, leer, {}},
    Typ{Feldart::memo, {}, {}}, // the marking of the imported records fills this field
};

const Typ& typVon(const Satzfeld& feld)
{
    return *std::find_if(typen.begin(), typen.end(), [&](const Typ& typ) { return typ.art == feld.art; });
}

/// Fields joined by the delimiter, padded with empty ones. The padding is what an empty value finds.
std::string anweisung(std::string_view quelle, std::string_view typ, const std::vector<std::string_view>& werte)
{
    auto zeile = verbinde(quelle, trenner, typ);
    for (const auto wert : werte) {
        zeile.append(1, trenner).append(wert);
    }
    const auto fehlende = static_cast<std::size_t>(felderJeAnweisung) - 2 - werte.size();
    return zeile.append(fehlende, trenner);
}

std::vector<std::string_view> aneinander(const Paare& paare)
{
    std::vector<std::string_view> werte;
    for (const auto& [text, code] : paare) {
        werte.insert(werte.end(), {text, code});
    }
    return werte;
}

bool istListe(const Satzfeld& feld, Werteliste liste)
{
    return feld.werte.data() == liste.data();
}

/// The pairs of a care field: its value list, and the two lists that differ from it.
Paare betreuungspaare(const Satzfeld& feld)
{
    Paare paare(feld.werte.begin(), feld.werte.end());
    if (istListe(feld, werte::betrGru)) {
        paare.insert(paare.begin(), {"keine Angaben"_t, {}}); // an empty column too is "keine Angaben" here
    }
    if (istListe(feld, werte::schulden)) {
        const auto zweites = std::find_if(paare.begin(), paare.end(), [](const Wertepaar& p) { return p.code == "2"; });
        zweites->text = "bis10.000 €"_t; // a slip that stays: no imported row carries the code
    }
    return paare;
}

void hängeCodesAn(Paare& paare, Werteliste liste)
{
    for (const auto& [text, code] : liste) {
        paare.push_back({code, code});
    }
}

/// The pairs of an `option` field of a problem area. An unused area holds empty fields, hence the results
/// "<leer>"; where the stored text is the code, the code stands on both sides.
Paare diagnosepaare(const Satzfeld& feld, bool istSubstanz)
{
    Paare paare;
    if (istListe(feld, werte::konsumart)) {
        paare.push_back({leer, "0"_t});
        paare.insert(paare.end(), feld.werte.begin(), feld.werte.end());
    } else if (istListe(feld, werte::icdZusatz)) {
        paare = {{leer, leer}, {"0"_t, "0"_t}};
        hängeCodesAn(paare, feld.werte);
    } else if (istListe(feld, werte::essstörung)) {
        paare = {{leer, "9"_t}};
        hängeCodesAn(paare, feld.werte);
    } else {
        // risky consumption of a substance is "k.A.", the answer of the other areas stays empty
        paare.assign(feld.werte.begin(), feld.werte.end());
        paare.insert(paare.begin() + (istSubstanz ? 1 : 0), {leer, "0"_t});
    }
    return paare;
}

/// Of the areas that share a class of the catalogue, the older data's main diagnosis lands on this one.
constexpr std::array aufnehmende{1, 2, 6, 8, 10, 12, 15, 18, 19, 20, 21, 22, 23, 24, 29};

bool nimmtAuf(int gruppe)
{
    return std::find(aufnehmende.begin(), aufnehmende.end(), gruppe) != aufnehmende.end();
}

/// The codes of column 159 by which an area is the main diagnosis, with the result for each.
std::vector<std::string> hauptdiagnosewerte(int gruppe)
{
    const std::string& icd = aryICD.at(static_cast<std::size_t>(gruppe));
    const auto klasse = icd.substr(1, 2);
    const std::string ergebnis = nimmtAuf(gruppe) ? "1" : "0";
    std::vector<std::string> werte;
    const auto paar = [&](std::string_view code) {
        werte.push_back(ergebnis);
        werte.emplace_back(code);
    };
    if (klasse == "63") {
        paar("630"_t);
    } else if (klasse == "55") {
        paar(verbinde(klasse, icd.back()));
    } else if (klasse == "50") {
        for (const auto& [text, code] : werte::essstörung) {
            paar(verbinde(klasse, code));
        }
        paar(klasse);
    } else {
        paar(verbinde(klasse, '1'));
        paar(verbinde(klasse, '2'));
        if (nimmtAuf(gruppe)) {
            paar(klasse);
        }
    }
    werte.insert(werte.end(), {"0", std::string(sonst)});
    return werte;
}

std::string mitAnmerkungen(const Satzfeld& feld)
{
    const auto& typ = typVon(feld);
    return anweisung(feld.quelle, typ.name, {typ.anmerkungen.begin(), typ.anmerkungen.end()});
}

std::string betreuungsanweisung(const Satzfeld& feld)
{
    if (feld.art == Feldart::option) {
        return anweisung(feld.quelle, typVon(feld).name, aneinander(betreuungspaare(feld)));
    }
    return mitAnmerkungen(feld);
}

std::string diagnoseanweisung(const Satzfeld& feld, int nummer)
{
    const int gruppe = (nummer - diagnosefeld(1, 1)) / felderJeGruppe + 1;
    if (feld.art == Feldart::option) {
        return anweisung(feld.quelle, typVon(feld).name, aneinander(diagnosepaare(feld, gruppe <= 20)));
    }
    if (feld.art == Feldart::icd0000) {
        const auto werte = hauptdiagnosewerte(gruppe);
        return anweisung(feld.quelle, typVon(feld).name, {werte.begin(), werte.end()});
    }
    return mitAnmerkungen(feld);
}

} // namespace

void registriereAnweisungen(Ressourcen& ressourcen)
{
    int nummer = betreuungsanweisungen;
    ressourcen.setze(nummer, alsText(static_cast<std::int64_t>(betreuungsfelder().size())));
    for (const auto& feld : betreuungsfelder()) {
        ressourcen.setze(++nummer, betreuungsanweisung(feld));
    }
    nummer = diagnoseanweisungen;
    ressourcen.setze(nummer, alsText(static_cast<std::int64_t>(diagnosefelder().size())));
    for (const auto& feld : diagnosefelder()) {
        ++nummer;
        ressourcen.setze(nummer, diagnoseanweisung(feld, nummer - diagnoseanweisungen));
    }
}

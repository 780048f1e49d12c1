#include "import/Feldanweisung.h"

#include "export/Satzsicht.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/moHelferlein.h"
#include "zustand/Zustand.h"

#include <algorithm>
#include <array>

namespace {

constexpr int erstesErgebnis = 3;
constexpr int letzterCode = 60;

struct Artname {
    std::string_view name;
    Feldanweisungsart art;
};

constexpr std::array artnamen{
    Artname{"option"_t, Feldanweisungsart::Option},
    Artname{"zahl"_t, Feldanweisungsart::Zahl},
    Artname{"text"_t, Feldanweisungsart::Text},
    Artname{"datum"_t, Feldanweisungsart::Datum},
    Artname{"idKern"_t, Feldanweisungsart::IdKern},
    Artname{"idBetr"_t, Feldanweisungsart::IdBetr},
    Artname{"nation"_t, Feldanweisungsart::Nation},
    Artname{"kinder"_t, Feldanweisungsart::OderKA},
    Artname{"zuvor"_t, Feldanweisungsart::OderKA},
    Artname{"kontakte"_t, Feldanweisungsart::OderKA},
    Artname{"hdAlter"_t, Feldanweisungsart::HdAlter},
    Artname{"icd0000"_t, Feldanweisungsart::Icd0000},
    Artname{"hdOhne"_t, Feldanweisungsart::HdOhne},
    Artname{"ivKonsum"_t, Feldanweisungsart::IvKonsum},
    Artname{"icdPsy"_t, Feldanweisungsart::OhneErstesZeichen},
    Artname{"icdNeu"_t, Feldanweisungsart::OhneErstesZeichen},
    Artname{"<leer>"_t, Feldanweisungsart::Leer},
};

Feldanweisungsart artVon(std::string_view name)
{
    const auto ort = std::find_if(artnamen.begin(), artnamen.end(), [&](const Artname& a) { return a.name == name; });
    return ort == artnamen.end() ? Feldanweisungsart::Unbekannt : ort->art;
}

Feldanweisung anweisungAus(const Satzsicht& zeile)
{
    Feldanweisung anweisung;
    const auto quelle = zeile.feld(1);
    if (!quelle.empty()) {
        anweisung.blatt = quelle.front();
        anweisung.spalte = leseGanzzahl16(quelle.substr(1)).value_or(0);
    }
    anweisung.art = artVon(zeile.feld(2));
    for (int ort = erstesErgebnis; ort < letzterCode; ort += 2) {
        anweisung.paare.push_back({std::string(zeile.feld(ort)), std::string(zeile.feld(ort + 1))});
    }
    return anweisung;
}

} // namespace

std::vector<Feldanweisung> ladeAnweisungen(int erste)
{
    const auto anzahl = leseGanzzahl16(ladeResText(erste));
    if (!anzahl) {
        throw Laufzeitfehler(verbinde("Die Anweisungstabelle "_t, alsText(erste), " fehlt."_t));
    }
    std::vector<Feldanweisung> anweisungen;
    for (int i = 1; i <= *anzahl; ++i) {
        const auto zeile = ladeResText(erste + i);
        anweisungen.push_back(anweisungAus(Satzsicht(zeile)));
    }
    return anweisungen;
}

std::string_view schlageNach(const Feldanweisung& anweisung, std::string_view wert, std::string& ablage)
{
    for (const auto& [ergebnis, code] : anweisung.paare) {
        if (code == "<sonst>") {
            return ergebnis == "<text>" ? wert : std::string_view(ergebnis);
        }
        if (code == wert) {
            return ergebnis == "<leer>" ? std::string_view{} : std::string_view(ergebnis);
        }
    }
    ablage = verbinde('\'', wert, "' nicht gefunden"_t);
    return ablage;
}

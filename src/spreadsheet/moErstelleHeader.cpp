#include "spreadsheet/moErstelleHeader.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Satzaufbau.h"
#include "satz/moData.h"
#include "satz/moHelferlein.h"
#include "spreadsheet/moVariablen.h"
#include "zustand/Zustand.h"

#include <cstddef>
#include <map>
#include <string_view>
#include <utility>

namespace {

/// What stands in the eight fields of a problem group, over each group of the diagnosis table.
constexpr std::array<std::string_view, felderJeGruppe> gruppenlabels{
    "Überwiegende Konsumart letzte 30 Tage vor BetrBeg"_t,
    "# KonsumTage 30 Tage vor BetrBeg"_t,
    "# KonsumTage 30 Tage am BetrEnd"_t,
    "ICD10-4+5"_t,
    "Alter bei Störungsbeginn"_t,
    "Riskanter Konsum"_t,
    "Alter Erstkonsum"_t,
    "Hauptdiagnose"_t,
};

constexpr std::array<std::string_view, felderJeGruppe> gruppenendungen{
    "1"_t, "2"_t, "3"_t, "4"_t, "5"_t, "6"_t, "_alterErstkonsum"_t, "_HD"_t,
};

/// The groups from one to another, with a digit for each field that they use and a blank for one they don't.
struct Gruppennutzung {
    int von;
    int bis;
    std::string_view genutzt;
};

constexpr std::array<Gruppennutzung, 3> gruppennutzung{{
    {1, 20, "12345678"_t},
    {21, 28, " 2345 78"_t},
    {29, 29, "   45  8"_t},
}};

struct Zusatzreihe {
    std::string_view stamm;
    int anzahl;
};

constexpr std::array<Zusatzreihe, 3> zusatzreihen{{{"icdpsy"_t, 4}, {"icdneu"_t, 4}, {"icdand"_t, 4}}};
constexpr int zusatzdiagnosen = 12;

void hängeAn(std::string& zeile, std::string_view spalte)
{
    zeile.append(spalte);
    zeile.push_back(trenner);
}

bool nutzt(int gruppe, int platz)
{
    for (const Gruppennutzung& nutzung : gruppennutzung) {
        if (gruppe >= nutzung.von && gruppe <= nutzung.bis) {
            return nutzung.genutzt[static_cast<std::size_t>(platz - 1)] != ' ';
        }
    }
    return false;
}

std::string spaltenname(int gruppe, int platz)
{
    if (!nutzt(gruppe, platz)) {
        return std::string("VOID"_t);
    }
    return verbinde("icd"_t, gruppencode(gruppe), gruppenendungen[static_cast<std::size_t>(platz - 1)]);
}

std::string diagnoseBezeichnungen()
{
    std::string zeile;
    hängeAn(zeile, "KernID"_t);
    hängeAn(zeile, "betrID"_t);
    for (int gruppe = 1; gruppe <= diagnosegruppen; ++gruppe) {
        for (const std::string_view label : gruppenlabels) {
            hängeAn(zeile, label);
        }
    }
    for (int i = 1; i <= zusatzdiagnosen; ++i) {
        hängeAn(zeile, verbinde("ZusatzDiagnose "_t, alsText(i)));
    }
    return zeile;
}

std::string diagnoseSpaltennamen()
{
    std::string zeile;
    hängeAn(zeile, "fallnr"_t);
    hängeAn(zeile, "betrnr"_t);
    for (int gruppe = 1; gruppe <= diagnosegruppen; ++gruppe) {
        for (int platz = 1; platz <= felderJeGruppe; ++platz) {
            hängeAn(zeile, spaltenname(gruppe, platz));
        }
    }
    for (const Zusatzreihe& reihe : zusatzreihen) {
        for (int i = 1; i <= reihe.anzahl; ++i) {
            hängeAn(zeile, verbinde(reihe.stamm, alsText(i)));
        }
    }
    return zeile;
}

/// The names of all care fields in record order; the first one is spelt with a capital in the header.
std::string betreuungsSpaltennamen()
{
    std::string zeile;
    zeile.append("KernID"_t);
    for (std::size_t feld = 1; feld < betreuungsfelder().size(); ++feld) {
        zeile.push_back(trenner);
        zeile.append(betreuungsfelder()[feld].name);
    }
    return zeile;
}

using Variablentabelle = std::map<std::string, std::string>;

/// The rows by their name in lower case; of two rows with one name the first counts.
Variablentabelle ladeVariablen(int basis)
{
    Variablentabelle tabelle;
    const auto anzahl = static_cast<int>(führendeZahl(ladeResText(basis)));
    for (int nummer = 1; nummer <= anzahl; ++nummer) {
        std::string zeile = ladeResText(basis + nummer);
        std::string name = klein(getFeld(zeile, 1));
        tabelle.try_emplace(std::move(name), std::move(zeile));
    }
    return tabelle;
}

} // namespace

Kopfzeilen erstelleKernHeader()
{
    Kopfzeilen zeilen;
    zeilen[2] = "·kernID··Nachname·Vorname·Strasse·PLZ·Ort·Geschlecht·Geburtsdatum·memoK·"_t;
    zeilen[3] = "·kernID·betrao·nachname·vorname·strasse·plz·ort·geschlecht·gebdatum·"_t;
    return zeilen;
}

Kopfzeilen erstelleBetrHeader(std::string_view modus)
{
    Kopfzeilen zeilen;
    zeilen[3] = betreuungsSpaltennamen();
    if (klein(modus) == "excel"_t) {
        auto bezeichnungen = sucheBezeichnungen(zeilen[3], basisVariablen);
        zeilen[1] = std::move(bezeichnungen.erste);
        zeilen[2] = std::move(bezeichnungen.zweite);
    } else if (klein(modus) == "word"_t) {
        auto bezeichnungen = sucheBezeichnungen(zeilen[1], basisVariablenOhneWiederholung);
        zeilen[2] = std::move(bezeichnungen.erste);
        zeilen[3] = std::move(bezeichnungen.zweite);
    }
    return zeilen;
}

Kopfzeilen erstelleDiagHeader()
{
    Kopfzeilen zeilen;
    hängeAn(zeilen[1], {});
    hängeAn(zeilen[1], {});
    for (std::size_t gruppe = 1; gruppe < aryProblem.size(); ++gruppe) {
        for (int platz = 1; platz <= felderJeGruppe; ++platz) {
            hängeAn(zeilen[1], aryProblem[gruppe]);
        }
    }
    zeilen[2] = diagnoseBezeichnungen();
    zeilen[3] = diagnoseSpaltennamen();
    return zeilen;
}

Bezeichnungen sucheBezeichnungen(std::string_view spaltennamen, int basis)
{
    const Variablentabelle tabelle = ladeVariablen(basis);
    Bezeichnungen bezeichnungen;
    const int anzahl = anzahlFelder(spaltennamen);
    for (int spalte = 1; spalte <= anzahl; ++spalte) {
        const std::string name = klein(getFeld(spaltennamen, spalte));
        const auto zeile = tabelle.find(name);
        const bool gefunden = zeile != tabelle.end();
        hängeAn(bezeichnungen.erste, gefunden ? getFeld(zeile->second, 2) : std::string_view(name));
        hängeAn(bezeichnungen.zweite, gefunden ? getFeld(zeile->second, 3) : std::string_view{});
    }
    return bezeichnungen;
}

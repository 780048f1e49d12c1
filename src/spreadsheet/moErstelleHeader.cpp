#include "spreadsheet/moErstelleHeader.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Diagnosefelder.h"
#include "satz/Satzaufbau.h"
#include "satz/moData.h"
#include "satz/moHelferlein.h"
#include "spreadsheet/moVariablen.h"

#include <algorithm>
#include <cstddef>
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

void hängeAn(std::string& zeile, std::string_view spalte)
{
    zeile.append(spalte);
    zeile.push_back(trenner);
}

bool nutzt(int gruppe, int platz)
{
    const auto* reihe = gruppenreihe(gruppe);
    return reihe != nullptr && reihe->frage(platz).gefragt;
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
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        for (const std::string_view label : gruppenlabels) {
            hängeAn(zeile, label);
        }
    }
    for (int i = 1; i <= anzahlWeitereDiagnosen; ++i) {
        hängeAn(zeile, verbinde("ZusatzDiagnose "_t, alsText(i)));
    }
    return zeile;
}

std::string diagnoseSpaltennamen()
{
    std::string zeile;
    hängeAn(zeile, "fallnr"_t);
    hängeAn(zeile, "betrnr"_t);
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        for (int platz = 1; platz <= felderJeGruppe; ++platz) {
            hängeAn(zeile, spaltenname(gruppe, platz));
        }
    }
    for (const Diagnoseart& reihe : diagnosearten) {
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

/// By the name in lower case; of two rows with one name the first counts.
const Variable* findeVariable(std::string_view name)
{
    const auto ort = std::ranges::find_if(variablen(), [&](const Variable& v) { return klein(v.name) == name; });
    return ort == variablen().end() ? nullptr : &*ort;
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
        auto bezeichnungen = sucheBezeichnungen(zeilen[3]);
        zeilen[1] = std::move(bezeichnungen.erste);
        zeilen[2] = std::move(bezeichnungen.zweite);
    } else if (klein(modus) == "word"_t) {
        auto bezeichnungen = sucheBezeichnungen(zeilen[1], true);
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

Bezeichnungen sucheBezeichnungen(std::string_view spaltennamen, bool ohneWiederholung)
{
    Bezeichnungen bezeichnungen;
    const int anzahl = anzahlFelder(spaltennamen);
    for (int spalte = 1; spalte <= anzahl; ++spalte) {
        const std::string name = klein(getFeld(spaltennamen, spalte));
        if (const auto* variable = findeVariable(name)) {
            hängeAn(bezeichnungen.erste, ohneWiederholung ? variable->ersteOhneWiederholung() : variable->erste);
            hängeAn(bezeichnungen.zweite, variable->zweite);
        } else {
            hängeAn(bezeichnungen.erste, name);
            hängeAn(bezeichnungen.zweite, {});
        }
    }
    return bezeichnungen;
}

#include "spreadsheet/moErstelleHeader.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "satz/moData.h"
#include "spreadsheet/moVariablen.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace {

/// What stands in the eight fields of a problem group: label and, behind the group's code, the name.
constexpr std::array gruppenköpfe{
    std::pair{"Überwiegende Konsumart letzte 30 Tage vor BetrBeg"_t, "1"_t},
    std::pair{"# KonsumTage 30 Tage vor BetrBeg"_t, "2"_t},
    std::pair{"# KonsumTage 30 Tage am BetrEnd"_t, "3"_t},
    std::pair{"ICD10-4+5"_t, "4"_t},
    std::pair{"Alter bei Störungsbeginn"_t, "5"_t},
    std::pair{"Riskanter Konsum"_t, "6"_t},
    std::pair{"Alter Erstkonsum"_t, "_alterErstkonsum"_t},
    std::pair{"Hauptdiagnose"_t, "_HD"_t},
};
static_assert(gruppenköpfe.size() == felderJeGruppe, "each field of a group has its column");

std::string spaltenname(int gruppe, int platz, std::string_view endung)
{
    const auto* reihe = gruppenreihe(gruppe);
    const bool istGenutzt = reihe != nullptr && reihe->frage(platz).gefragt;
    return istGenutzt ? verbinde("icd"_t, gruppencode(gruppe), endung) : std::string("VOID"_t);
}

/// The fields of the client record.
constexpr std::array kernköpfe{
    std::pair{""_t, ""_t},
    std::pair{"kernID"_t, "kernID"_t},
    std::pair{""_t, "betrao"_t},
    std::pair{"Nachname"_t, "nachname"_t},
    std::pair{"Vorname"_t, "vorname"_t},
    std::pair{"Strasse"_t, "strasse"_t},
    std::pair{"PLZ"_t, "plz"_t},
    std::pair{"Ort"_t, "ort"_t},
    std::pair{"Geschlecht"_t, "geschlecht"_t},
    std::pair{"Geburtsdatum"_t, "gebdatum"_t},
    std::pair{"memoK"_t, ""_t},
};
static_assert(kernköpfe.size() == feld::kern::anzahl, "each field of the client record has its column");

} // namespace

Spaltenköpfe erstelleKernHeader()
{
    Spaltenköpfe köpfe;
    for (const auto& [frage, name] : kernköpfe) {
        köpfe.push_back({{}, std::string(frage), std::string(name)});
    }
    return köpfe;
}

Spaltenköpfe erstelleBetrHeader(std::string_view modus)
{
    if (klein(modus) == "word"_t) {
        return {}; // asked for by name, reached by nothing: it looked up a row that is empty
    }
    Spaltenköpfe köpfe;
    for (const auto& feld : betreuungsfelder()) {
        auto& kopf = köpfe.emplace_back(klein(modus) == "excel"_t ? sucheBezeichnungen(feld.name) : Spaltenkopf{});
        kopf.name = feld.name;
    }
    köpfe.front().name = "KernID"_t; // spelt with a capital in the header
    return köpfe;
}

Spaltenköpfe erstelleDiagHeader()
{
    Spaltenköpfe köpfe;
    const auto füge = [&](std::string_view thema, std::string_view frage, std::string_view name) {
        köpfe.push_back({std::string(thema), std::string(frage), std::string(name)});
    };
    füge({}, "KernID"_t, "fallnr"_t);
    füge({}, "betrID"_t, "betrnr"_t);
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        for (int platz = 1; const auto& [label, endung] : gruppenköpfe) {
            füge(gruppenname(gruppe), label, spaltenname(gruppe, platz++, endung));
        }
    }
    int nummer = 0;
    for (const Diagnoseart& reihe : diagnosearten) {
        for (int i = 1; i <= reihe.anzahl; ++i) {
            füge({}, verbinde("ZusatzDiagnose "_t, alsText(++nummer)), verbinde(reihe.stamm, alsText(i)));
        }
    }
    füge({}, {}, {}); // the bit field
    return köpfe;
}

Spaltenkopf sucheBezeichnungen(std::string_view spaltenname)
{
    const auto name = klein(spaltenname);
    const auto ort = std::ranges::find(variablen(), name, &Variable::name);
    return ort == variablen().end() ? Spaltenkopf{name, {}, {}}
                                    : Spaltenkopf{std::string(ort->erste), std::string(ort->zweite), {}};
}

#pragma once

#include "satz/Satzaufbau.h"

#include <string>
#include <string_view>
#include <vector>

class Ressourcen;

/// A row of an instruction table: where the field's value comes from and what it becomes.
struct Feldanweisung {
    char blatt = 0; ///< 'K': core row, 'D': diagnosis row, 0: no source
    int spalte = 0;
    Feldart art = Feldart::leer;
    struct Paar {
        std::string ergebnis;
        std::string code;
    };
    std::vector<Paar> paare{}; ///< of the kinds that look the value up
    std::string vorgabe{};     ///< what a field without source holds
};

/// The result for the code; "<leer>" and "<text>" are resolved. An empty value that the row lacks stays empty; another
/// one gives the text "'…' nicht gefunden", which stays in the record.
std::string_view schlageNach(const Feldanweisung& anweisung, std::string_view wert, std::string& ablage);

/// The two instruction tables of the import's last stage: row n tells how field n of a care or of a diagnosis record
/// arises from the rows of the yearly export. They are derived from the record layouts and the value lists, so that
/// the export and the import are one mapping read in two directions.
///
/// The catalogue of problem areas has to be built.
std::vector<Feldanweisung> betreuungsanweisungen();
std::vector<Feldanweisung> diagnoseanweisungen();

/// The same as string resources, made when they are asked for: entries 4001 to 4192 and 5001 to 5247, the first entry
/// of a table holds its number of rows. A row is a text of 59 fields: source ("K16": column 16 of the core row, "D124":
/// of the diagnosis row), type, then pairs of result and code.
inline constexpr int ressourceBetreuungsanweisungen = 4000;
inline constexpr int ressourceDiagnoseanweisungen = 5000;
inline constexpr int felderJeAnweisung = 59;

void registriereAnweisungen(Ressourcen& ressourcen);

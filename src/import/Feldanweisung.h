#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

enum class Feldanweisungsart {
    Option,
    Zahl,
    Text,
    Datum,
    IdKern,
    IdBetr,
    Nation,
    OderKA,
    HdAlter,
    Icd0000,
    HdOhne,
    IvKonsum,
    OhneErstesZeichen,
    Leer,
    Unbekannt
};

/// A row of an instruction table, read once for a run: where a field's value comes from and what it becomes.
struct Feldanweisung {
    char blatt = 0; ///< 'K': core row, 'D': diagnosis row, 0: no source
    int spalte = 0;
    Feldanweisungsart art = Feldanweisungsart::Unbekannt;
    struct Paar {
        std::string ergebnis;
        std::string code;
    };
    std::vector<Paar> paare; ///< fields 3 to 60, the padding included, since an empty value finds it
};

/// The table whose count stands in the string resource `erste`. A count that is no number is a Laufzeitfehler.
std::vector<Feldanweisung> ladeAnweisungen(int erste);

/// The result for the code; "<leer>" and "<text>" are resolved. A code that the row lacks gives the text
/// "'…' nicht gefunden", which stays in the record.
std::string_view schlageNach(const Feldanweisung& anweisung, std::string_view wert, std::string& ablage);

#pragma once

#include "satz/Wertelisten.h"

#include "platform/text/Text.h"

#include <optional>
#include <string_view>

/// One column of an export row as data: which field of which record it takes, and how the stored text becomes
/// the column's value. Zeilenbauer carries the codings out.
enum class Satzart { Klient, Betreuung, Diagnose };

enum class Kodierung {
    Tsnr,               ///< the value that the run hands in; always empty
    Gespeichert,        ///< the text as it is
    Dauer,              ///< days from begin to end, or "offen"
    Alter,              ///< completed years on the first day of the episode
    KurzJaNein,         ///< by `werte` without regard to case; a fault leaves the column empty
    Tabelle,            ///< by `werte`
    Zusatzziffern,      ///< number at the start of the text, one of the codes of `werte` or 0
    Essstörung,         ///< the same without the 0; "k.A." gives `leer`
    ErsatzFürKA,        ///< "k.A." gives `ersatz`, else as stored; the value counts as working value
    ErsatzFürLeer,      ///< an empty text gives `leer`, else as stored
    Nation,             ///< code of the state
    MitBuchstabe,       ///< `ersatz` before the text, an empty one stays empty
    Flaggenplatz,       ///< place of the last "wahr" among `anzahl` fields, 0 for none
    Hauptdiagnose,      ///< code of the main diagnosis
    AlterHauptdiagnose, ///< age of first consumption of the main diagnosis
};

struct Exportspalte {
    Kodierung kodierung = Kodierung::Gespeichert;
    Satzart satz = Satzart::Betreuung;
    int feld = 0;
    Werteliste werte{};
    std::optional<std::string_view> leer{}; ///< what an empty text gives; without it the coding decides
    std::string_view ersatz{};
    std::string_view meldung = "Fehler hier"_t; ///< box of a text that the coding does not hold
    int anzahl = 1;
};

#pragma once

#include "platform/text/Text.h"
#include "satz/Satzaufbau.h"

#include <array>
#include <string>
#include <string_view>

/// A kind of further diagnoses, some fields of the diagnosis record in a row.
struct Diagnoseart {
    std::string_view stamm; ///< name of the fields without their number
    int anzahl;
    Feldart art;
    int ersteSpalte;            ///< in the diagnosis row of the export
    std::string_view buchstabe; ///< what the record leaves out and every output adds; empty: it is typed
};

/// In their order in the record and on the page.
inline constexpr std::array<Diagnoseart, 3> diagnosearten{{
    {"icdpsy"_t, 4, Feldart::icdPsy, 162, "F"_t},
    {"icdneu"_t, 4, Feldart::icdNeu, 166, "G"_t},
    {"icdand"_t, 4, Feldart::text, 170, ""_t},
}};

inline constexpr int anzahlWeitereDiagnosen = [] {
    int anzahl = 0;
    for (const auto& art : diagnosearten) {
        anzahl += art.anzahl;
    }
    return anzahl;
}();

/// The kind of further diagnosis `nummer` (1 to 12).
constexpr const Diagnoseart& diagnoseartVon(int nummer)
{
    std::size_t ort = 0;
    for (; ort + 1 < diagnosearten.size() && nummer > diagnosearten[ort].anzahl; ++ort) {
        nummer -= diagnosearten[ort].anzahl;
    }
    return diagnosearten[ort];
}

/// What can be typed, "#" for one digit; where no letter is added, any one character goes before it. The last one is
/// shown as the form.
inline constexpr std::array<std::string_view, 3> diagnosemuster{"##"_t, "##.#"_t, "##.##"_t};

/// Whether the text can stand in further diagnosis `nummer` (1 to 12): empty, or of one of the forms; the
/// field delimiter never can.
bool istWeitereDiagnose(int nummer, std::string_view text);

/// What the user is told about a text that can't.
std::string meldungZuWeitererDiagnose(int nummer);

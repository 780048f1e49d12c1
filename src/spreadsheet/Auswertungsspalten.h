#pragma once

#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Klientenfelder.h"
#include "satz/Problemgruppen.h"

#include <array>
#include <string_view>

/// The columns of the evaluation sheet, from 1: the ids, the client, the main diagnosis, the episode.
namespace auswertungsspalte {

/// In the order of the client record.
inline constexpr std::array klientenköpfe{"v_Nachname"_t, "v_Vorname"_t,    "v_Strasse"_t,     "v_PLZ"_t,
                                          "v_Ort"_t,      "v_Geschlecht"_t, "v_Geburtsdatum"_t};
static_assert(klientenköpfe.size() == feld::kern::geburtsdatum - feld::kern::nachname + 1);

struct HDSpalte {
    std::string_view kopf;
    std::string_view kommentar; ///< empty: none
};

/// The answers of the block in their order, and the name of its group.
inline constexpr std::array hdSpalten{
    HDSpalte{"ICDxxx1"_t, "Überwiegende Konsumart letzte 30 Tage vor BetrBeg"_t},
    HDSpalte{"ICDxxx2"_t, "# KonsumTage 30 Tage am BetrEnd"_t},
    HDSpalte{"ICDxxx3"_t, "ICD10 4. und 5. Stelle"_t},
    HDSpalte{"ICDxxx4"_t, "Alter bei Störungsbeginn"_t},
    HDSpalte{"ICDxxx5"_t, "Riskanter Konsum"_t},
    HDSpalte{"ICDxxx6"_t, "Alter Erstkonsum"_t},
    HDSpalte{"v_AlterErstkonsum"_t, {}},
    HDSpalte{"v_Hauptdiagnose"_t, {}},
};
static_assert(hdSpalten.size() == AlterErstkonsum + 1);

inline constexpr int fall = 1;
inline constexpr int betreuungsnummer = 2;
inline constexpr int klient = 3;
inline constexpr int hauptdiagnose = klient + static_cast<int>(klientenköpfe.size());
inline constexpr int betreuung = hauptdiagnose + static_cast<int>(hdSpalten.size());
inline constexpr int letzte = betreuung + feld::betr::memo - 1 - feld::betr::beginn;

} // namespace auswertungsspalte

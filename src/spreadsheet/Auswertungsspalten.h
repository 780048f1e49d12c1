#pragma once

#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"

#include <algorithm>
#include <array>
#include <string_view>

/// The columns of the evaluation sheet, from 1: the ids, the client, the main diagnosis, the episode.
namespace auswertungsspalte {

/// A column: what stands over it, and the field that it shows. The fields of a table ascend; those between have no
/// column.
struct Spalte {
    std::string_view kopf;
    int feld;
    std::string_view kommentar{}; ///< empty: none
};

/// Of the diagnosis record.
inline constexpr std::array kennungen{
    Spalte{"fallnr"_t, feld::diag::kernID},
    Spalte{"betrnr"_t, feld::diag::betrID},
};

/// Of the client record.
inline constexpr std::array klientenspalten{
    Spalte{"v_Nachname"_t, feld::kern::nachname},
    Spalte{"v_Vorname"_t, feld::kern::vorname},
    Spalte{"v_Strasse"_t, feld::kern::straße},
    Spalte{"v_PLZ"_t, feld::kern::plz},
    Spalte{"v_Ort"_t, feld::kern::ort},
    Spalte{"v_Geschlecht"_t, feld::kern::geschlecht},
    Spalte{"v_Geburtsdatum"_t, feld::kern::geburtsdatum},
};

/// Of the block of the main diagnosis. In place of its mark the last column shows the name of its group.
inline constexpr std::array hdSpalten{
    Spalte{"ICDxxx1"_t, Konsumart, "Überwiegende Konsumart letzte 30 Tage vor BetrBeg"_t},
    Spalte{"ICDxxx2"_t, TageBeginn, "# KonsumTage 30 Tage am BetrEnd"_t},
    Spalte{"ICDxxx3"_t, TageEnde, "ICD10 4. und 5. Stelle"_t},
    Spalte{"ICDxxx4"_t, ICDStelle4, "Alter bei Störungsbeginn"_t},
    Spalte{"ICDxxx5"_t, AlterStörung, "Riskanter Konsum"_t},
    Spalte{"ICDxxx6"_t, Riskant, "Alter Erstkonsum"_t},
    Spalte{"v_AlterErstkonsum"_t, AlterErstkonsum},
    Spalte{"v_Hauptdiagnose"_t, HDMarke},
};

static_assert(std::ranges::is_sorted(kennungen, {}, &Spalte::feld) &&
                  std::ranges::is_sorted(klientenspalten, {}, &Spalte::feld) &&
                  std::ranges::is_sorted(hdSpalten, {}, &Spalte::feld),
              "a column stands where its field stands in the record");

inline constexpr int fall = 1;
inline constexpr int betreuungsnummer = 2;
inline constexpr int klient = fall + static_cast<int>(kennungen.size());
inline constexpr int hauptdiagnose = klient + static_cast<int>(klientenspalten.size());
inline constexpr int gruppe = hauptdiagnose + static_cast<int>(hdSpalten.size()) - 1;
inline constexpr int betreuung = gruppe + 1;
inline constexpr int letzte = betreuung + feld::betr::memo - 1 - feld::betr::beginn;

} // namespace auswertungsspalte

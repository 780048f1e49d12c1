#pragma once

#include "platform/text/Text.h"

#include <array>
#include <string_view>

/// The key that opens the handbook, as the toolkit calls it.
inline constexpr auto handbuchtaste = "F1"_t;

/// Where the handbook tells about a screen: the mark of a heading (Handbuch.h).
struct Handbuchstelle {
    std::string_view bildschirm;
    std::string_view marke;
};

inline constexpr std::array<Handbuchstelle, 17> handbuchstellen{{
    {"frmHauptmenü"_t, "hauptmenü"_t},
    {"frmStammdaten"_t, "klientendaten"_t},
    {"frmMemo"_t, "memo"_t},
    {"frmInfo"_t, "über-dieses-programm"_t},
    {"frmBetreuungZeitraum"_t, "zeitraum-einer-betreuung"_t},
    {"frmBetreuungA"_t, "hauptseite-einer-betreuung"_t},
    {"frmBetrA"_t, "maßnahmen"_t},
    {"frmBetrB"_t, "soziodemografische-daten-1"_t},
    {"frmBetrC"_t, "soziodemografische-daten-2"_t},
    {"frmBetrDiagnose"_t, "diagnose-und-konsum"_t},
    {"frmBetrDiagnoseCodeAuswahl"_t, "problembereich-auswählen"_t},
    {"frmBetrDiagnoseErstellen"_t, "fragen-zum-problembereich"_t},
    {"frmBetrE"_t, "daten-zum-betreuungsende"_t},
    {"frmExport"_t, "jahresexport"_t},
    {"frmZuExcel"_t, "arbeitsmappe"_t},
    {"frmDatenÜbernahme"_t, "übernahme-der-daten-aus-tolvek"_t},
    {"frmMergeDB"_t, "zusammenführen-von-datenbeständen"_t},
}};

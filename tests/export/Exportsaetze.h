#pragma once

#include "export/Diagnosezeile.h"
#include "export/Kernzeile.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Satzaufbau.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Records for the tests of the export: the default ones with some fields set.

using Belegung = std::initializer_list<std::pair<int, std::string_view>>; ///< field number, text

/// The box about a value that no list knows.
inline constexpr auto fehlerHier = "Fehler hier";

inline std::string mitFeldern(std::string_view zeile, Belegung belegung)
{
    std::vector<std::string> felder{""};
    for (const char zeichen : zeile) {
        if (zeichen == trenner) {
            felder.emplace_back();
        } else {
            felder.back().push_back(zeichen);
        }
    }
    for (const auto& [nummer, text] : belegung) {
        felder.at(static_cast<std::size_t>(nummer - 1)) = text;
    }
    std::string ergebnis = felder.front();
    for (std::size_t i = 1; i < felder.size(); ++i) {
        ergebnis.append(1, trenner).append(felder[i]);
    }
    return ergebnis;
}

inline std::string klientensatz(int kernID, Belegung belegung = {})
{
    return mitFeldern(mitFeldern("\xB7\xB7\xB7\xB7\xB7\xB7\xB7\xB7keine Angaben\xB7unbekannt\xB7",
                                 {{2, alsText(kernID)}, {4, "Muster"}}),
                      belegung);
}

inline std::string betreuungssatz(int kernID, int betrID, Belegung belegung = {})
{
    const auto satz = mitFeldern(erstelleDefaultBetrDS(), {{1, alsText(kernID)}, {2, alsText(betrID)}});
    return mitFeldern(mitFeldern(satz, {{3, "01.02.2006"}, {4, "offen"}}), belegung);
}

inline std::string diagnosesatz(int kernID, int betrID, Belegung belegung = {})
{
    return mitFeldern(mitFeldern(erstelleDefaultDiagDS(), {{1, alsText(kernID)}, {2, alsText(betrID)}}), belegung);
}

inline std::string kernzeile(std::string_view kernDS, std::string_view betrDS, const Bestandsmeldung& meldung)
{
    return erstelleKernZeile({.meldung = meldung, .klient = Satzsicht(kernDS), .betreuung = Satzsicht(betrDS)});
}

inline std::string diagnosezeile(std::string_view betrDS, std::string_view diagDS, const Bestandsmeldung& meldung)
{
    return erstelleDiagZeile({.meldung = meldung, .betreuung = Satzsicht(betrDS), .diagnose = Satzsicht(diagDS)});
}

/// Column `nummer` of a row.
inline std::string spalte(const std::string& zeile, int nummer)
{
    std::size_t anfang = 0;
    for (int i = 1; i < nummer; ++i) {
        const auto ort = zeile.find(';', anfang);
        if (ort == std::string::npos) {
            return "no such column";
        }
        anfang = ort + 1;
    }
    return zeile.substr(anfang, zeile.find(';', anfang) - anfang);
}

#pragma once

#include "platform/dateien/Dateien.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

/// The instruction files beside the program tell how a column of the older core data set arises from the
/// older care record. They are data of the installation: a facility whose older files are laid out otherwise
/// changes them and not the program.

inline constexpr auto kernanweisungsdatei = "eKernAnweisung.txt";
inline constexpr auto diagnoseanweisungsdatei = "eDiagAnweisung.txt";

enum class Spaltenanweisungsart {
    Wert,
    Option,
    Betreuungsende,
    IcdZusatz,
    LebSit,
    LebSitLeer,
    Kostenträger,
    Icd0000,
    Dauer,
    Unbekannt
};

struct Spaltenanweisung {
    static constexpr std::size_t paarzahl = 13;

    std::int16_t quelle = 0; ///< field of the care record, from 1; 0: the column stays empty
    Spaltenanweisungsart art = Spaltenanweisungsart::Unbekannt;
    std::array<std::pair<std::string, std::string>, paarzahl> paare; ///< source text, target text
};

/// The first `anzahl` instructions of the file. Values are separated by commas or line ends, text values may
/// stand in quotes, a quote inside is doubled. A file that is missing or too short, a source that is no 16-bit
/// number and an open quote are a Laufzeitfehler.
std::vector<Spaltenanweisung> leseSpaltenanweisungen(Dateien& dateien, const std::filesystem::path& pfad,
                                                     std::size_t anzahl);

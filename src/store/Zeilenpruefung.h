#pragma once

#include "store/Befund.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// A line of a table taken apart.
struct Satzzeile {
    Tabelle tabelle;
    std::size_t nummer;
    std::vector<std::string_view> felder;

    /// Field from 1, empty beyond the last.
    std::string_view feld(int wo) const
    {
        return static_cast<std::size_t>(wo) <= felder.size() ? felder[static_cast<std::size_t>(wo - 1)]
                                                             : std::string_view();
    }
    Fundort ort(int feld = 0) const { return {.tabelle = tabelle, .datei = {}, .zeile = nummer, .feld = feld}; }
};

/// The line ends of a whole table.
void prüfeZeilenenden(Tabelle tabelle, std::string_view inhalt, Befundliste& befunde);
/// Takes the line apart; nothing for one that can't be read as a record (empty, too long), which is told.
bool zerlegeZeile(Tabelle tabelle, std::string_view zeile, std::size_t nummer, Satzzeile& satz, Befundliste& befunde);
/// Number of fields and characters.
void prüfeForm(const Satzzeile& satz, Befundliste& befunde);
/// The key in the field, told when it is none; a value that the program reads is given although it is told.
std::optional<std::int32_t> prüfeSchlüssel(const Satzzeile& satz, int feld, Befundliste& befunde);

#pragma once

#include "satz/Satzaufbau.h"
#include "store/Befund.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// The layout of a table's records.
const std::vector<Satzfeld>& satzfelder(Tabelle tabelle);

/// A line of a table taken apart, with the list that takes what is found in it.
struct Satzzeile {
    Befundliste& befunde;
    Tabelle tabelle;
    std::size_t nummer = 0;
    std::vector<std::string_view> felder{};

    bool hat(int feld) const { return static_cast<std::size_t>(feld) <= felder.size(); }
    /// Field from 1, empty beyond the last.
    std::string_view feld(int wo) const
    {
        return hat(wo) ? felder[static_cast<std::size_t>(wo - 1)] : std::string_view();
    }
    /// `feld` is 0 for a finding about the whole line.
    void melde(const Befundart& art, int feld, std::string_view genauer = {}, std::string_view folge = {}) const
    {
        befunde.melde(art, {tabelle, nummer, feld}, genauer, folge);
    }
};

/// The line ends of a whole table.
void prüfeZeilenenden(Tabelle tabelle, std::string_view inhalt, Befundliste& befunde);
/// Takes the line apart; false for one that can't be read as a record (empty, too long), which is told.
bool zerlege(std::string_view zeile, Satzzeile& satz);
/// Number of fields and characters.
void prüfeForm(const Satzzeile& satz);
/// The key in the field, told when it is none; a value that the program reads is given although it is told.
std::optional<std::int32_t> prüfeSchlüssel(const Satzzeile& satz, int feld);

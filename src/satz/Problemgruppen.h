#pragma once

#include "satz/Satzaufbau.h"
#include "satz/moData.h"

#include <algorithm>
#include <array>
#include <cstddef>

// The kinds of problem areas: which groups of the catalogue ask what, and where it goes in the export. Dialogue, record
// table, export, import and workbook read it here.

enum class Gruppenart { Substanz, MissbrauchOderSpiel, Essstörung };

/// Answers of a block, as the record orders them.
enum Blockfeld { Konsumart = 1, TageBeginn, TageEnde, ICDStelle4, AlterStörung, Riskant, AlterErstkonsum, HDMarke };

/// One of the eight fields of a block.
struct Blockfrage {
    Feldart art = Feldart::leer;
    Werteliste werte{};
    bool gefragt = false; ///< a person can answer it
    bool eigeneSpalte = false;
};

/// The groups from one to another, which ask the same.
struct Gruppenreihe {
    Gruppenart art;
    int von;
    int bis;
    int ersteSpalte; ///< in the diagnosis row; group by group each question with a column of its own takes one
    std::array<Blockfrage, felderJeGruppe> fragen;

    constexpr const Blockfrage& frage(int platz) const { return fragen[static_cast<std::size_t>(platz - 1)]; }
    constexpr int spaltenJeGruppe() const
    {
        return static_cast<int>(std::ranges::count(fragen, true, &Blockfrage::eigeneSpalte));
    }
};

namespace problemgruppen {

/// A question with a column of its own in each group.
constexpr Blockfrage option(Werteliste werte)
{
    return {Feldart::option, werte, true, true};
}
inline constexpr Blockfrage zahl{Feldart::zahl, {}, true, true};
inline constexpr Blockfrage nichts{};
/// One column for all groups: they are answers of the main diagnosis.
inline constexpr Blockfrage erstkonsum{Feldart::hdAlter, {}, true, false};
/// The import fills it, nobody is asked.
inline constexpr Blockfrage erstkonsumUngefragt{Feldart::hdAlter, {}, false, false};
inline constexpr Blockfrage marke{Feldart::icd0000, {}, true, false};

inline constexpr std::array<Gruppenreihe, 3> gruppenreihen{{
    {Gruppenart::Substanz,
     1,
     20,
     4,
     {option(werte::konsumart), zahl, zahl, option(werte::icdZusatz), zahl, option(werte::kurz), erstkonsum, marke}},
    {Gruppenart::MissbrauchOderSpiel,
     21,
     28,
     125,
     {nichts, zahl, zahl, option(werte::kurz), zahl, nichts, erstkonsum, marke}},
    {Gruppenart::Essstörung,
     29,
     29,
     157,
     {nichts, nichts, nichts, option(werte::essstörung), zahl, nichts, erstkonsumUngefragt, marke}},
}};

} // namespace problemgruppen

using problemgruppen::gruppenreihen;
static_assert(gruppenreihen.front().von == 1 && gruppenreihen.back().bis == höchsteGruppe,
              "the kinds cover the groups of the catalogue");
static_assert(
    [] {
        for (std::size_t i = 1; i < gruppenreihen.size(); ++i) {
            const auto& davor = gruppenreihen[i - 1];
            const int frei = davor.ersteSpalte + davor.spaltenJeGruppe() * (davor.bis - davor.von + 1);
            if (gruppenreihen[i].von != davor.bis + 1 || gruppenreihen[i].ersteSpalte < frei) {
                return false;
            }
        }
        return true;
    }(),
    "each row begins with the group behind the one before, and with a column that is free");

/// The kind of the group with what it asks; nullptr for a number that is no group.
constexpr const Gruppenreihe* gruppenreihe(int gruppe)
{
    for (const auto& reihe : gruppenreihen) {
        if (gruppe >= reihe.von && gruppe <= reihe.bis) {
            return &reihe;
        }
    }
    return nullptr;
}

/// Whether the group is of the kind.
constexpr bool istGruppe(int gruppe, Gruppenart art)
{
    const auto* reihe = gruppenreihe(gruppe);
    return reihe != nullptr && reihe->art == art;
}

/// Gaming machines: the only group whose import knows a number of its own for an answer that is not given.
inline constexpr int geldspielautomaten = 24;

/// The numbers that the answer takes in a block; only for those that are numbers.
constexpr werte::Zahlenbereich antwortbereich(int platz)
{
    return platz == TageBeginn || platz == TageEnde ? werte::konsumtage : werte::alter;
}

#pragma once

#include "platform/dateien/Zeilensuche.h"
#include "platform/mappe/Arbeitsmappe.h"
#include "spreadsheet/Auswertungsspalten.h"
#include "spreadsheet/moErstelleHeader.h"

#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>

/// The three tables of a run, as views that the workbook keeps alive.
struct Tabellen {
    std::string_view kern;
    std::string_view betr;
    std::string_view diag;
};

/// The main diagnosis of a diagnosis record.
struct HDBlock {
    int gruppe = 0;             ///< 1 to 29, 0 for none
    std::string_view antworten; ///< the fields of its block before the mark
};

/// The block of the first group whose main-diagnosis flag is "1". Throws Laufzeitfehler for a line of more than
/// 32,767 characters.
HDBlock sucheHDBlock(std::string_view satz);

/// The evaluation sheet: one row per diagnosis record with client data, main diagnosis and the care record
/// (Auswertungsspalten.h). Every column shows what its header says except the comments of the main diagnosis from its
/// second column on, which stand one off; users know them that way.
class Auswertung {
public:
    /// Adds the sheet `Auswertung` in front of all others. The tables must live as long as the workbook; `diagDat`
    /// names the file of one of them in failures.
    Auswertung(Arbeitsmappe& mappe, const Tabellen& tabellen, std::filesystem::path diagDat);

    /// The ids and the main diagnosis. More records than a 16-bit row number counts are a Laufzeitfehler.
    void schreibeHauptdiagnosen();
    /// The client, down to the first row without an id.
    void schreibeKlienten();
    /// The episode, down to the first row without an id. `köpfe` are those of the care table; `beiDatensatz` is told of
    /// each record, counted from 1.
    void schreibeBetreuungen(const Spaltenköpfe& köpfe, const std::function<void(int nummer)>& beiDatensatz);

private:
    bool istBelegt(int zeile) const { return m_blatt.zelle(zeile, 1).art != Zellart::Leer; }
    std::string schlüssel(int zeile, int spalte) const { return alsAnzeigetext(m_blatt.zelle(zeile, spalte)); }
    void schreibeKöpfe(int spalte, std::span<const auswertungsspalte::Spalte> spalten);
    void schreibeBetreuungskopf(const Spaltenköpfe& köpfe);

    Blatt& m_blatt;
    std::string_view m_diag;
    std::filesystem::path m_diagDat;
    Zeilensuche m_klienten;
    Zeilensuche m_betreuungen;
};

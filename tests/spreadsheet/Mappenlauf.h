#pragma once

#include "hilfen/Testumgebung.h"
#include "platform/mappe/Arbeitsmappe.h"
#include "satz/moData.h"
#include "spreadsheet/Auswertung.h"
#include "spreadsheet/Rohtabellen.h"
#include "spreadsheet/moErstelleHeader.h"

/// A record with so many fields, all empty but the ones given by number.
inline std::string satzMit(int felder, std::initializer_list<std::pair<int, std::string_view>> inhalte)
{
    std::string zeile;
    for (int feld = 1; feld <= felder; ++feld) {
        for (const auto& [nummer, text] : inhalte) {
            if (nummer == feld) {
                zeile.append(text);
            }
        }
        if (feld < felder) {
            zeile.push_back(trenner);
        }
    }
    return zeile;
}

/// The workbook of three tables, made by the steps of the spreadsheet output.
class Mappenlauf {
public:
    Mappenlauf() { baueProblemKatalog(); }

    void schreibe(const std::vector<std::string>& kern, const std::vector<std::string>& betr,
                  const std::vector<std::string>& diag)
    {
        const Rohblätter blätter = legeBlätterAn(mappe);
        const Tabellen tabellen{lege(m_lauf.pfade().kernDat, kern), lege(m_lauf.pfade().betrDat, betr),
                                lege(m_lauf.pfade().diagDat, diag)};
        const auto betrKopf = erstelleBetrHeader("excel");
        schreibeKernDat(blätter.kern, tabellen.kern, erstelleKernHeader());
        schreibeBetrDat(blätter.betr, tabellen.betr, betrKopf);
        schreibeDiagDat(blätter.diag, tabellen.diag, erstelleDiagHeader());
        Auswertung auswertung(mappe, tabellen, m_lauf.pfade().diagDat);
        auswertung.schreibeHauptdiagnosen();
        auswertung.schreibeKlienten();
        auswertung.schreibeBetreuungen(betrKopf, [this](int nummer) { gemeldet.push_back(nummer); });
    }

    const Blatt& blatt(std::string_view name) const { return *mappe.finde(name); }
    std::string text(std::string_view name, int zeile, int spalte) const
    {
        return alsText(blatt(name).zelle(zeile, spalte));
    }

    Arbeitsmappe mappe;
    std::vector<int> gemeldet; ///< the records that were reported

private:
    std::string_view lege(const std::filesystem::path& pfad, const std::vector<std::string>& zeilen)
    {
        Testlauf::schreibeZeilen(pfad, zeilen);
        return liesTabelle(mappe, m_lauf.stand.bestand.dateien(), pfad);
    }

    Testlauf m_lauf;
};

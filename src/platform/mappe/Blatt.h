#pragma once

#include "platform/mappe/Zellwert.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// How the fields of a line become cells: one field a cell, except those that have none. No quoting rule.
struct Feldplan {
    char trennzeichen = '\xB7';
    Zelltyp typ = Zelltyp::Allgemein;
    std::vector<int> ohneZelle; ///< fields from 1, ascending; what follows them moves left

    /// The cell of the field, from 1, for a field that has one.
    int zelleVon(int feld) const
    {
        return feld - static_cast<int>(std::ranges::lower_bound(ohneZelle, feld) - ohneZelle.begin());
    }
};

/// One field a cell, of the general type.
extern const Feldplan alleFelder;

/// A sheet of the workbook. Rows and columns count from 1.
///
/// Ten thousand care records are six million cells, so a cell is no object. A row holds pieces: single cells, and
/// parts of table lines as one view each, with a plan that tells which field stands where; a field is found when it
/// is asked for, and becomes a number or a date only then. A view must stay valid as long as the sheet: see
/// Arbeitsmappe::halte.
class Blatt {
public:
    explicit Blatt(std::string_view name) : m_name(name) {}
    Blatt(const Blatt&) = delete;
    Blatt& operator=(const Blatt&) = delete;

    const std::string& name() const { return m_name; }
    void setzeName(std::string_view name) { m_name = name; }

    /// Puts a copy of the text into the cell; an empty text empties it.
    void setze(int zeile, int spalte, std::string_view text, Zelltyp typ = Zelltyp::Allgemein);
    /// Puts the text into the cell without copying it.
    void verweise(int zeile, int spalte, std::string_view text, Zelltyp typ = Zelltyp::Allgemein);
    /// Keeps the plan for as long as the sheet lives.
    const Feldplan& merke(Feldplan plan) { return m_pläne.emplace_back(std::move(plan)); }
    /// Puts the fields of the line into the row, from the cell on, without copying them. The columns that it takes
    /// belong to it: no single cell stands there.
    void verweiseFelder(int zeile, int spalte, std::string_view text, const Feldplan& plan = alleFelder);

    void kommentiere(int zeile, int spalte, std::string_view text) { m_kommentare[{zeile, spalte}] = text; }
    void setzeFett(int zeile) { m_fett.insert(zeile); }
    /// Every column becomes as wide as its content.
    void passeSpaltenbreitenAn() { m_breitenAngepasst = true; }

    Zellwert zelle(int zeile, int spalte) const;
    /// The comment, nullptr without one.
    const std::string* kommentar(int zeile, int spalte) const;
    bool istFett(int zeile) const { return m_fett.contains(zeile); }
    bool sindBreitenAngepasst() const { return m_breitenAngepasst; }
    /// The last row and the last column that hold something, 0 in an empty sheet.
    int zeilenanzahl() const;
    int spaltenanzahl() const;

    /// Calls `tue(spalte, Zellwert)` for each cell of the row that holds something, from left to right.
    template <class F> void fürJedeZelle(int zeile, F&& tue) const;
    /// Calls `tue(spalte, text)` for each comment of the row, from left to right.
    template <class F> void fürJedenKommentar(int zeile, F&& tue) const;
    /// The last row with a comment, 0 without any.
    int letzteKommentarzeile() const { return m_kommentare.empty() ? 0 : m_kommentare.rbegin()->first.first; }

private:
    /// A single cell, or the fields of a line from a column on.
    struct Stück {
        std::string_view text;
        const Feldplan* plan = nullptr; ///< nullptr: a single cell
        int spalte = 0;
        Zelltyp typ = Zelltyp::Allgemein;
    };
    using Zeile = std::vector<Stück>; ///< by column

    Zeile& zeileFür(int zeile);
    std::string_view kopie(std::string_view text) { return text.empty() ? text : m_eigeneTexte.emplace_back(text); }
    static void füge(Zeile& z, const Stück& stück);
    /// Calls `tue(spalte, text, typ)` for each cell of the piece.
    template <class F> static void fürJedesFeld(const Stück& stück, F&& tue);

    std::string m_name;
    std::vector<Zeile> m_zeilen;
    std::deque<Feldplan> m_pläne;
    std::deque<std::string> m_eigeneTexte;
    std::map<std::pair<int, int>, std::string> m_kommentare; ///< by row and column
    std::set<int> m_fett;
    bool m_breitenAngepasst = false;
};

template <class F> void Blatt::fürJedesFeld(const Stück& stück, F&& tue)
{
    if (stück.plan == nullptr) {
        tue(stück.spalte, stück.text, stück.typ);
        return;
    }
    auto ohne = stück.plan->ohneZelle.begin();
    std::string_view rest = stück.text;
    int spalte = stück.spalte;
    for (int feld = 1;; ++feld) {
        const auto ende = rest.find(stück.plan->trennzeichen);
        if (ohne != stück.plan->ohneZelle.end() && *ohne == feld) {
            ++ohne;
        } else {
            tue(spalte++, rest.substr(0, ende), stück.plan->typ);
        }
        if (ende == std::string_view::npos) {
            return;
        }
        rest.remove_prefix(ende + 1);
    }
}

template <class F> void Blatt::fürJedeZelle(int zeile, F&& tue) const
{
    if (static_cast<std::size_t>(zeile - 1) >= m_zeilen.size()) {
        return;
    }
    for (const auto& stück : m_zeilen[static_cast<std::size_t>(zeile - 1)]) {
        fürJedesFeld(stück, [&](int spalte, std::string_view text, Zelltyp typ) {
            if (text.empty()) {
                return;
            }
            const Zellwert wert = leseZelle(text, typ);
            if (wert.art != Zellart::Leer) {
                tue(spalte, wert);
            }
        });
    }
}

template <class F> void Blatt::fürJedenKommentar(int zeile, F&& tue) const
{
    for (auto ort = m_kommentare.lower_bound({zeile, 0}); ort != m_kommentare.end() && ort->first.first == zeile;
         ++ort) {
        tue(ort->first.second, ort->second);
    }
}

#pragma once

#include "platform/mappe/Spaltenkarte.h"
#include "platform/mappe/Zellwert.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// How a text import takes the fields of a line.
struct Importregeln {
    char trennzeichen = '\xB7';
    std::vector<Zelltyp> spaltentypen; ///< by field; Allgemein behind the last one
};

/// A sheet of the workbook. Rows and columns count from 1.
///
/// Ten thousand care records are six million cells, so a cell is no object. A row holds the line of the
/// table that was imported into it as one view, and single cells for what was written one by one; a field of
/// the line is found when it is asked for, and becomes a number or a date only then. Deleting columns and
/// ranges changes a map from columns to stored places (Spaltenkarte) and moves nothing; rows that were shifted
/// alike share a map. A view must stay valid as long as the sheet: see Arbeitsmappe::halte.
class Blatt {
public:
    explicit Blatt(std::string_view name) : m_name(name), m_bänder(1) {}
    Blatt(const Blatt&) = delete;
    Blatt& operator=(const Blatt&) = delete;

    const std::string& name() const { return m_name; }
    void setzeName(std::string_view name) { m_name = name; }

    /// Puts a copy of the text into the cell; an empty text empties it.
    void setze(int zeile, int spalte, std::string_view text, Zelltyp typ = Zelltyp::Allgemein);
    /// Puts the text into the cell without copying it.
    void verweise(int zeile, int spalte, std::string_view text, Zelltyp typ = Zelltyp::Allgemein);
    /// Puts each line of the text into a row, from the cell on, one field a cell. No quoting rule.
    void importiereText(int zeile, int spalte, std::string_view inhalt, Importregeln regeln);
    /// Splits the texts of the column, in the rows between the two, into columns from there on.
    void textInSpalten(int vonZeile, int bisZeile, int spalte, char trennzeichen);

    void löscheSpalte(int spalte);
    /// Deletes the cells of the range; what stands at its right moves left. The corners may come in any order.
    void löscheBereich(int zeileA, int spalteA, int zeileB, int spalteB);

    void kommentiere(int zeile, int spalte, std::string_view text);
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
    struct Einzelzelle {
        std::string_view text;
        int ort = 0;
        Zelltyp typ = Zelltyp::Allgemein;
    };

    /// How the line of a row is split; shared by the rows of one import or one splitting.
    struct Teilung {
        Importregeln regeln;
        Zelltyp sonst = Zelltyp::Allgemein;

        Zelltyp typ(std::size_t feld) const
        {
            return feld < regeln.spaltentypen.size() ? regeln.spaltentypen[feld] : sonst;
        }
    };

    struct Zeile {
        std::string_view text;           ///< the line, split at its delimiter
        std::vector<Einzelzelle> zellen; ///< by ort; they stand before the line's fields
        int ort = 0;                     ///< stored place of the line's first field
        std::uint32_t teilung = 0;
    };

    /// Rows from `vonZeile` to the next band, which share their map of columns.
    struct Band {
        int vonZeile = 1;
        Spaltenkarte karte;
    };

    struct Fund {
        std::string_view text;
        Zelltyp typ = Zelltyp::Allgemein;
    };

    const Zeile* zeileWennDa(int zeile) const;
    Zeile& zeileFür(int zeile);
    const Spaltenkarte& karte(int zeile) const;
    void beginneBand(int zeile);
    Fund suche(int zeile, int spalte) const;
    Fund sucheFeld(const Zeile& z, int ort) const;
    void teile(int zeile, int spalte, std::string_view text, std::uint32_t teilung);
    void löseAuf(Zeile& z);
    static void setzeEinzeln(Zeile& z, const Einzelzelle& zelle);
    std::optional<int> spalteVon(int zeile, int ort) const;

    /// Calls `tue(ort, text, typ)` for each stored cell of the row with a text, from left to right.
    template <class F> void fürJedenOrt(const Zeile& z, F&& tue) const;

    std::string m_name;
    std::vector<Zeile> m_zeilen;
    std::vector<Band> m_bänder;
    std::vector<Teilung> m_teilungen;
    std::deque<std::string> m_eigeneTexte;
    std::map<std::pair<int, int>, std::string> m_kommentare; ///< by row and stored place
    std::set<int> m_fett;
    bool m_breitenAngepasst = false;
};

template <class F> void Blatt::fürJedenOrt(const Zeile& z, F&& tue) const
{
    auto einzeln = z.zellen.begin();
    const auto gibEinzelneVor = [&](int ort) {
        for (; einzeln != z.zellen.end() && einzeln->ort < ort; ++einzeln) {
            tue(einzeln->ort, einzeln->text, einzeln->typ);
        }
    };
    std::string_view rest = z.text;
    const Teilung* teilung = rest.empty() ? nullptr : &m_teilungen[z.teilung];
    for (std::size_t feld = 0; teilung != nullptr; ++feld) {
        const std::size_t ende = rest.find(teilung->regeln.trennzeichen);
        const int ort = z.ort + static_cast<int>(feld);
        gibEinzelneVor(ort);
        const bool ersetzt = einzeln != z.zellen.end() && einzeln->ort == ort;
        if (!ersetzt && ende != 0 && !rest.empty()) {
            tue(ort, rest.substr(0, ende), teilung->typ(feld));
        }
        if (ende == std::string_view::npos) {
            break;
        }
        rest.remove_prefix(ende + 1);
    }
    gibEinzelneVor(INT32_MAX);
}

template <class F> void Blatt::fürJedeZelle(int zeile, F&& tue) const
{
    const Zeile* z = zeileWennDa(zeile);
    if (z == nullptr) {
        return;
    }
    const Spaltenkarte& k = karte(zeile);
    int spalte = 1;
    fürJedenOrt(*z, [&](int ort, std::string_view text, Zelltyp typ) {
        while (k.ort(spalte) < ort) {
            ++spalte;
        }
        if (k.ort(spalte) != ort) {
            return;
        }
        const Zellwert wert = leseZelle(text, typ);
        if (wert.art != Zellart::Leer) {
            tue(spalte, wert);
        }
    });
}

template <class F> void Blatt::fürJedenKommentar(int zeile, F&& tue) const
{
    for (auto ort = m_kommentare.lower_bound({zeile, 0}); ort != m_kommentare.end() && ort->first.first == zeile;
         ++ort) {
        if (const auto spalte = spalteVon(zeile, ort->first.second)) {
            tue(*spalte, ort->second);
        }
    }
}

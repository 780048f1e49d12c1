#pragma once

#include "export/Satzsicht.h"
#include "platform/text/Text.h"
#include "satz/Wertelisten.h"
#include "store/Lesestand.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What the rows of a run are made of: the records of the episode at hand, and what is the same for all.
struct Exportsätze {
    const Bestandsmeldung& meldung; ///< told of a text that a coding does not hold
    std::string_view tsnr{};        ///< first column of both rows; nothing ever fills it, but its place is kept
    Satzsicht klient{};
    Satzsicht betreuung{};
    Satzsicht diagnose{};
};

struct Exportspalte;

/// Turns records into one row of the export, column by column.
///
/// A text that a coding does not hold shows a box, and the column gets what the working value last held: the
/// result of the nearest column to the left that went through a value list or "number or …". The row stays
/// well-formed that way, and the receiving side knows it so; the rule is kept although the code is wrong.
class Zeilenbauer {
public:
    explicit Zeilenbauer(const Exportsätze& sätze) : m_sätze(sätze) {}

    /// The row: the columns, each followed by ";".
    std::string baue(const std::vector<Exportspalte>& spalten);

    // The codings: each appends to the row what the text of the column's field becomes.

    /// The value that the run hands in; always empty.
    void tsnr(const Exportspalte& spalte, std::string_view text);
    /// The text as it is.
    void gespeichert(const Exportspalte& spalte, std::string_view text);
    /// Days from begin to end, or "offen".
    void dauer(const Exportspalte& spalte, std::string_view text);
    /// Completed years on the first day of the episode.
    void alter(const Exportspalte& spalte, std::string_view geburtsdatum);
    /// By `werte` without regard to case; a fault leaves the column empty.
    void kurzJaNein(const Exportspalte& spalte, std::string_view text);
    /// By `werte`.
    void tabelle(const Exportspalte& spalte, std::string_view text);
    /// Number at the start of the text, one of the codes of `werte`. "k.A.", and a 0 that is no code, give `leer`.
    void ziffern(const Exportspalte& spalte, std::string_view text);
    /// "k.A." gives `ersatz`, else as stored; the value counts as working value.
    void ersatzFürKA(const Exportspalte& spalte, std::string_view text);
    /// An empty text gives `leer`, else as stored.
    void ersatzFürLeer(const Exportspalte& spalte, std::string_view text);
    /// Code of the state.
    void nation(const Exportspalte& spalte, std::string_view text);
    /// `ersatz` before the text, an empty one stays empty.
    void mitBuchstabe(const Exportspalte& spalte, std::string_view text);
    /// Place of the last "wahr" among `anzahl` fields, 0 for none.
    void flaggenplatz(const Exportspalte& spalte, std::string_view text);
    /// Code of the main diagnosis.
    void hauptdiagnose(const Exportspalte& spalte, std::string_view text);
    /// Age of first consumption of the main diagnosis.
    void alterHauptdiagnose(const Exportspalte& spalte, std::string_view text);

private:
    void schreibeArbeitswert(std::string_view wert);
    /// The code, or for nullptr the box and the working value.
    void schreibeCode(const Exportspalte& spalte, const std::string_view* code);
    void melde(const Exportspalte& spalte) const;

    const Exportsätze& m_sätze;
    std::string m_zeile;
    std::string_view m_arbeitswert; ///< a view into a value list or a record
};

/// One column of an export row as data: which field of which record it takes, and how its text becomes the column's
/// value.
struct Exportspalte {
    void (Zeilenbauer::*kodierung)(const Exportspalte& spalte, std::string_view text) = &Zeilenbauer::gespeichert;
    Satzsicht Exportsätze::*satz = &Exportsätze::betreuung;
    int feld = 0; ///< from 1; 0: no field, its text is empty
    Werteliste werte{};
    std::optional<std::string_view> leer{}; ///< what an empty text gives; without it the coding decides
    std::string_view ersatz{};
    std::string_view meldung = "Fehler hier"_t; ///< box of a text that the coding does not hold
    int anzahl = 1;
};

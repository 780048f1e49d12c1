#pragma once

#include "export/Exportspalte.h"
#include "export/Satzsicht.h"
#include "store/Lesestand.h"

#include <cstdint>
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

/// Turns records into one row of the export, column by column.
///
/// A text that a coding does not hold shows a box, and the column gets what the working value last held: the
/// result of the nearest column to the left that went through a value list or "number or …". The row stays
/// well-formed that way, and the receiving side knows it so; the rule is kept although the code is wrong.
class Zeilenbauer {
public:
    Zeilenbauer(std::string& ziel, const Exportsätze& sätze) : m_ziel(ziel), m_sätze(sätze) {}

    /// Appends the columns, each followed by ";".
    void baue(const std::vector<Exportspalte>& spalten);

private:
    const Satzsicht& satz(const Exportspalte& spalte) const;
    void schreibe(const Exportspalte& spalte, std::string_view text);
    void schreibeZahl(std::int64_t zahl);
    void schreibeArbeitswert(std::string_view wert);
    void melde(const Exportspalte& spalte) const { m_sätze.meldung(spalte.meldung, Symbol::Keins); }
    void schreibeFehlgriff(const Exportspalte& spalte);

    void dauer(const Exportspalte& spalte);
    void alter(const Exportspalte& spalte, std::string_view geburtsdatum);
    void kurzJaNein(const Exportspalte& spalte, std::string_view text);
    void tabelle(const Exportspalte& spalte, std::string_view text);
    void zusatzziffern(const Exportspalte& spalte, std::string_view text);
    void essstörung(const Exportspalte& spalte, std::string_view text);
    void flaggenplatz(const Exportspalte& spalte);
    void hauptdiagnose();
    void alterHauptdiagnose();

    std::string& m_ziel;
    const Exportsätze& m_sätze;
    std::string_view m_arbeitswert; ///< a view into a value list or a record
};

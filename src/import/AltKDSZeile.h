#pragma once

#include "import/Anweisungsdatei.h"
#include "import/Betreuungssatz.h"
#include "store/Lesestand.h"

#include <string>
#include <string_view>

/// The fields between which the duration of an episode is counted: those that the instructions of the columns
/// 4 and 5 of the client file name.
struct Zeitraumfelder {
    int beginn = 0;
    int ende = 0;
};

/// Builds one row of the older core data set from a care line, column by column. The value of the column before
/// is kept, since the duration of an open episode repeats it.
class AltKDSZeile {
public:
    AltKDSZeile(const Betreuungssatz& satz, Zeitraumfelder zeitraum, const Bestandsmeldung& meldung)
        : m_satz(satz), m_zeitraum(zeitraum), m_meldung(meldung)
    {}

    const std::string& text() const { return m_zeile; }
    void beginne() { m_zeile.clear(); }

    /// A column with this value.
    void wert(std::string_view wert);
    /// The column as its instruction says.
    void führeAus(const Spaltenanweisung& anweisung, int spalte);

private:
    void melde(std::string_view text) const { m_meldung(text, Symbol::Keins); }
    void option(const Spaltenanweisung& anweisung, int spalte);
    void icdZusatz(std::string_view text, int spalte);
    void lebensSituation(std::string_view text);
    void kostenträger();
    void hauptdiagnose(std::string_view text);
    std::string klasseMitZusatz(int gruppe) const;
    void dauer();

    const Betreuungssatz& m_satz;
    Zeitraumfelder m_zeitraum;
    const Bestandsmeldung& m_meldung;
    std::string m_zeile;
    std::string m_wert;
};

#pragma once

#include "platform/elemente/Elemente.h"

#include <cstddef>
#include <string>

/// A date while it is being typed: selected as a whole at first, so that what is typed replaces it; read when
/// the field is left. A text that is no date leaves the old one.
class Datumseingabe {
public:
    explicit Datumseingabe(Datumsfeld& feld);

    const Datumsfeld& feld() const { return m_feld; }
    const std::string& text() const { return m_text; }
    /// Whether the field still shows the date that the typing began with.
    bool gilt() const { return m_feld.datum() == m_anfang; }
    /// False for a key that is none of the field's.
    bool taste(const Taste& taste);
    /// The field takes what was typed.
    void übernimm();

private:
    void tippe(char zeichen);
    void lösche(bool rückwärts);
    void stelle(int schritte);

    Datumsfeld& m_feld;
    Datum m_anfang;
    std::string m_text;
    std::size_t m_marke;
    bool m_ganzGewählt = true;
};

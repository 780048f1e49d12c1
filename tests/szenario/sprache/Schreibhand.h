#pragma once

#include "sprache/Tastenfolge.h"

#include <cstddef>
#include <string>
#include <string_view>

class Datumsfeld;
class Textfeld;

/// The editing keys of a text box where no toolkit has them: what is typed, pasted, deleted and selected, and where the
/// cursor goes. One hand writes in one field; a text that it has not written itself is taken up at the field's cursor.
class Schreibhand {
public:
    /// False when a text box has no use for the key.
    bool drücke(Textfeld& feld, const Tastendruck& druck);
    /// Pasted text takes the place of all.
    void ersetzeAlles(Textfeld& feld, std::u32string_view text);
    /// The focus goes, and the selection with it.
    void lass() { m_feld = nullptr; }

private:
    void fasse(Textfeld& feld);
    void merke(std::size_t schreibmarke, std::size_t anker);
    void fügeEin(std::u32string_view zeichen);
    void lösche(bool rückwärts);
    bool bewege(std::size_t ziel, const Tastendruck& druck);
    bool bewegeCursor(const Tastendruck& druck);
    bool drückeMitStrg(const Tastendruck& druck);

    Textfeld* m_feld = nullptr;
    std::string m_text; ///< as the hand left it
    std::size_t m_schreibmarke = 0;
    std::size_t m_anker = 0; ///< the other end of what is selected
};

/// The same for a date, whose element keeps cursor and selection itself.
bool drückeInDatum(Datumsfeld& feld, const Taste& taste);

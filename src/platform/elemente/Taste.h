#pragma once

/// A key as an element gets it: a special key, or a character of the code page.
///
/// Few combinations with Ctrl and Alt mean something (copying, words and the like in texts, Alt and a letter to the
/// buttons); all others never reach an element (gibTaste in Reihengang.h), so most need not look at the flags.
///
///     element.taste({.art = Taste::Art::Zeichen, .zeichen = 'a'});
///     element.taste({.art = Taste::Art::Ab, .alt = true});
struct Taste {
    enum class Art {
        Zeichen,
        Rück,
        Entf,
        Links,
        Rechts,
        Auf,
        Ab,
        Pos1,
        Ende,
        Tab,
        RückTab,
        Eingabe,
        Esc,
        BildAuf,
        BildAb,
        F1,
        F4
    };
    Art art = Art::Zeichen;
    char zeichen = 0; ///< set for Art::Zeichen only
    bool umschalt = false;
    bool strg = false;
    bool alt = false; ///< Meta is both, which means nothing anywhere

    bool istLeertaste() const { return art == Art::Zeichen && zeichen == ' '; }
    /// What no text and no list has a use for.
    bool gehörtDemBildschirm() const
    {
        return art == Art::Tab || art == Art::RückTab || art == Art::Eingabe || art == Art::Esc || art == Art::F1 ||
               art == aufklapptaste;
    }
    bool istKombination() const { return strg || alt; }
    /// Alone, or Alt and Down: opens the list of a combo box or the calendar of a date, and closes it again.
    static constexpr Art aufklapptaste = Art::F4;
    bool klapptAuf() const { return !strg && !umschalt && (alt ? art == Art::Ab : art == aufklapptaste); }
};

#pragma once

/// A key as an element gets it: a special key, or a character of the code page.
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
        BildAb
    };
    Art art = Art::Zeichen;
    char zeichen = 0; ///< set for Art::Zeichen only
};

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What becomes of typed or pasted characters on their way into a field.
struct Eingabeergebnis {
    std::string text;        ///< code-page bytes
    bool ersetzt = false;    ///< at least one character became its nearest letter
    bool verweigert = false; ///< at least one character has no such letter and was not taken
    bool gekürzt = false;    ///< not all of it had room
};

/// Turns typed or pasted Unicode into code-page text: letters and the marks that follow them are composed first
/// (u and a combining diaeresis are ü), then a character that the code page lacks becomes its nearest letter (ć c,
/// ş s, ł l) or is not taken; nothing ever turns into "?". In a one-line field line breaks, tabs and control
/// characters become a blank; in one of several lines every line break becomes carriage return and line feed,
/// tabs stay, and other control characters are not taken. `höchstlänge` cuts the result (0: no limit).
Eingabeergebnis nimmEingabe(std::u32string_view eingabe, bool mehrzeilig, std::size_t höchstlänge = 0);

/// A stored text as its field shows it: in one of several lines every line break is one line feed.
std::u32string alsFeldtext(std::string_view text, bool mehrzeilig);

/// A field's text after a change by the person, and where the cursor stands in it.
struct Feldänderung {
    Eingabeergebnis ergebnis;
    std::size_t schreibmarke = 0; ///< bytes left of the cursor
    std::size_t anker = 0;        ///< the other end of what stays selected, since nothing was taken in its place
};

/// The field held `bisher`; now it shows `jetzt` (line breaks are line feeds) with the cursor behind `marke`
/// characters. Only what was typed or pasted goes through nimmEingabe, and only its length counts against
/// `höchstlänge`: what nobody has touched stays to the byte, also what could not be typed. Where nothing of it can be
/// taken, nothing changes, and what it would have replaced stays too.
Feldänderung nimmÄnderung(std::string_view bisher, std::u32string_view jetzt, std::size_t marke, bool mehrzeilig,
                          std::size_t höchstlänge = 0);

/// The same for a change that only moves characters which the field has held before (deleting, undoing): every byte
/// comes back as it was.
Feldänderung übertrageÄnderung(std::string_view bisher, std::u32string_view jetzt, std::size_t marke, bool mehrzeilig);

/// The byte for one character: itself, its nearest letter, or nothing.
std::optional<char> nächstesZeichen(char32_t zeichen);

/// UTF-8 to Unicode; a broken sequence becomes U+FFFD, which no field takes.
std::u32string ausUtf8(std::string_view text);

/// Code-page text as UTF-8, for system messages and file names.
std::string alsUtf8(std::string_view text);

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
};

/// Turns typed or pasted Unicode into code-page text: a character that the code page lacks becomes its
/// nearest letter (ć c, ş s, ł l) or is not taken; nothing ever turns into "?". In a one-line field line
/// breaks, tabs and control characters become a blank; in one of several lines every line break becomes
/// carriage return and line feed. `höchstlänge` cuts the result (0: no limit).
Eingabeergebnis nimmEingabe(std::u32string_view eingabe, bool mehrzeilig, std::size_t höchstlänge = 0);

/// The byte for one character: itself, its nearest letter, or nothing.
std::optional<char> nächstesZeichen(char32_t zeichen);

/// UTF-8 to Unicode; a broken sequence becomes U+FFFD, which no field takes.
std::u32string ausUtf8(std::string_view text);

/// Code-page text as UTF-8, for system messages and file names.
std::string alsUtf8(std::string_view text);

#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// What a line of a scenario says, before it is known what the words mean.

/// What was expected where something else stands.
class Formfehler : public std::runtime_error {
public:
    explicit Formfehler(const std::string& erwartet) : std::runtime_error(erwartet) {}
};

/// Whether `\r` and `\n` are the single characters (texts that make up a whole file) or `\n` is a line break
/// and `\r` nothing special.
enum class Umbruch { Zeilenumbruch, Einzelzeichen };

/// The next word of `rest`, which loses it: a word without blanks as it is. Empty at the end of the line.
std::u32string_view nimmWort(std::u32string_view& rest);

/// The arguments of the line: separated by blanks; a text in double quotes may hold blanks and escapes, and
/// may stand behind `name=`. Throws Formfehler.
std::vector<std::u32string> zerlegeArgumente(std::u32string_view rest, Umbruch umbruch);

/// The text with its escapes replaced: `\n`, `\"`, `\\`, `\xHH` (a character of the code page). Any other
/// backslash is itself. Throws Formfehler.
std::u32string löseFluchtfolgen(std::u32string_view text, Umbruch umbruch);

#pragma once

#include "platform/elemente/Taste.h"

#include <optional>
#include <string_view>
#include <vector>

/// A key press as a scenario says it: a special key, or a character (any of Unicode).
struct Tastendruck {
    Taste::Art art = Taste::Art::Zeichen;
    char32_t zeichen = 0; ///< set for Art::Zeichen only
    bool umschalt = false;
    bool strg = false;
    bool alt = false;
};

/// The names of the special keys: "Rück", "Entf", …
std::vector<std::u32string_view> sondertastennamen();

/// The key presses of the text; special keys, and any key with Umschalt+, Strg+ or Alt+ in front, in braces; nothing
/// when a name in braces is no key.
std::optional<std::vector<Tastendruck>> liesTastenfolge(std::u32string_view text);

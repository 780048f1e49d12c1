#pragma once

#include "platform/elemente/Taste.h"

#include <optional>
#include <string_view>
#include <vector>

/// A key press as a scenario says it: a special key, or a character (any of Unicode).
struct Tastendruck {
    Taste::Art art = Taste::Art::Zeichen;
    char32_t zeichen = 0; ///< set for Art::Zeichen only
};

/// The key presses of the text, special keys in braces; nothing when a name in braces is no key.
std::optional<std::vector<Tastendruck>> liesTastenfolge(std::u32string_view text);

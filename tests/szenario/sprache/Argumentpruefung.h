#pragma once

#include "sprache/Anweisungsformen.h"

#include <string>
#include <string_view>

/// What the argument is called where it is missing: "eine Zahl".
std::string benennung(Argumentart art);
/// Throws Formfehler for a text that is none of the kind.
void prüfeArgument(Argumentart art, std::u32string_view text);

#pragma once

#include "Zufall.h"

#include "platform/text/Datum.h"

#include <string>

/// What people type, on purpose or not: names with umlauts, numbers, codes, the delimiter, characters that
/// the tables cannot hold, line breaks, very long texts.
std::u32string zufallstext(Zufall& zufall);
/// A short text for a field that wants a number or a code.
std::u32string zufallswert(Zufall& zufall);
enum class Tastenende { Beliebig, OhneLeertaste };

/// Keys one after another, with special keys in braces; a key that presses a button comes last, if at all.
std::u32string zufallstasten(Zufall& zufall, Tastenende ende);
/// Near the day, or anywhere in a hundred years.
Datum zufallsdatum(Zufall& zufall, const Datum& heute);

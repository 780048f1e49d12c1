#pragma once

#include "satz/Satzaufbau.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a screen offers for a field, from the field table alone, so that no screen names a value list a second time:
///
///     comboGeschlecht.setzeListe(auswahlliste(feldAus(klientenfelder(), feld::kern::geschlecht)));

/// The texts that are offered, the one for no answer first: of the value list, of the states, or the field's default
/// and the numbers of its range. Empty for other kinds.
std::vector<std::string> auswahlliste(const Satzfeld& feld);

/// The numbers that a care field of the kind takes beside its default; none where it is not one of numbers.
std::optional<werte::Zahlenbereich> zahlenbereich(Feldart art);
/// The numbers that the answer takes in a block of the diagnosis record (Blockfeld); only for those that are numbers.
werte::Zahlenbereich antwortbereich(int platz);

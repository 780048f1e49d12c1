#pragma once

#include "store/Bestand.h"

#include <string_view>

/// Repair at start: widens the years of stored dates to four digits (`Geburtsdatum` of the clients, begin and end
/// of the care episodes). Does nothing while there is no client, and rewrites a table only if one of its dates
/// needs it, both in one action. A date without a point shows the box "Fehler". A line that ends before the date or
/// within it stays as it is: a program that never starts again over one damaged line helps nobody. A table that can't
/// be read is a Laufzeitfehler; the old table is then still there.
void bereinigeDatum(const Bestand& bestand);

/// Whether the repair completes the year of the text: less than three characters behind the last point. What stands for
/// no date ("offen", "unbekannt") is longer.
bool hatKurzesJahr(std::string_view datum);

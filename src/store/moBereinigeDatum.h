#pragma once

/// Repair at start: widens the years of stored dates to four digits (`Geburtsdatum` of the clients, begin and end
/// of the care episodes). Does nothing while there is no client, and rewrites a table only if one of its dates
/// needs it. Notes the field counts that it finds in the state. A date without a point shows the box "Fehler".
/// A table that can't be read, or a line that lacks the field, is a Laufzeitfehler; the old table is then still
/// there.
void bereinigeDatum();

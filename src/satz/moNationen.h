#pragma once

#include <span>
#include <string>
#include <string_view>

class Ressourcen;

/// The program's one list of states. The care page fills its list from it, the export turns the stored name into the
/// code, the import the code into the name.
struct Nation {
    std::string_view code; ///< three letters
    std::string_view name; ///< what the records hold
};

/// In the order of the list on the care page.
std::span<const Nation> nationen();

/// Puts the table into the string resources: entry 1000 is the number of rows, the entries from 1001 on one row each:
/// code, delimiter, name.
void registriereNationen(Ressourcen& ressourcen);

/// The name of the first row with the code; "keine Angaben" for the empty code; for an unknown one the text
/// "konnte Nationencode … nicht zuordnen", which callers store like a name.
std::string getNationZuCode(std::string_view code);

/// The code of the first row with exactly this name; empty when there is none.
std::string_view getCodeZuNation(std::string_view name);

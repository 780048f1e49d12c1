#pragma once

#include "platform/dateien/Dateien.h"
#include "store/Befund.h"

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

/// The checker: looks at the three tables and at what lies beside them, and changes nothing. One pass over each table.
/// Whatever the program itself writes, in whatever way, is never a finding; what it leaves for the next start to put
/// right is a notice. A finding says what the program will do with it.

struct Prüfbericht {
    std::vector<Befund> befunde; ///< notices included
    std::size_t klienten = 0;
    std::size_t betreuungen = 0;
};

/// Throws Laufzeitfehler when a table is missing or can't be read.
Prüfbericht prüfeBestand(Dateien& dateien, const Bestandspfade& pfade);

/// The finding as a line of the report (code page, without line end).
std::string alsBerichtszeile(const Befund& befund, const Bestandspfade& pfade);

/// Checks the three tables in the program folder without changing anything; German report (UTF-8), one line a
/// finding, a summary at the end. 0 without findings, 1 with, 2 when it cannot read.
int pruefe(const std::filesystem::path& programmordner, std::ostream& aus);

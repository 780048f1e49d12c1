#pragma once

#include "store/Bestandspfade.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The commit record: what an action puts in the place of which file.
struct Vermerk {
    Tabelle tabelle;
    std::optional<std::uint64_t> alteLänge; ///< none: the file was not there
    std::uint64_t neueLänge = 0;
    std::uint64_t prüfsumme = 0; ///< of the new content
};

/// The record's text: a headline, a line for each file, and a checksum over them in the last line.
std::string alsVermerktext(const std::vector<Vermerk>& vermerke, const Bestandspfade& pfade);
/// Nothing for a text that is not a whole record.
std::optional<std::vector<Vermerk>> leseVermerke(std::string_view text, const Bestandspfade& pfade);

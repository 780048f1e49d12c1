#pragma once

#include "import/Importort.h"

#include <filesystem>

/// Stage 2 of the import: turns each care line with its client into one row of the older core data set in each
/// of two files, values followed by commas, 163 and 215 columns, by the instruction files beside the program.
///
/// A text that an `option` instruction lacks shows a box and leaves the row one column short, so that the later
/// columns stand one place too far left. A missing or damaged instruction file, a begin that is no date and a
/// care line with too many fields are a Laufzeitfehler.
void moimp2TolvekExportTOaltKDS(const Importort& ort, const std::filesystem::path& kernExp,
                                const std::filesystem::path& betreuungenExp, const std::filesystem::path& aKDSKern,
                                const std::filesystem::path& aKDSDiagnose);

/// Whether day a lies on or before day b, both d.m.y with any number of digits; years below 66 are 20yy, from
/// there to 99 19yy. No when one of them is no date or holds "/" or ",".
bool istNichtNach(std::string_view a, std::string_view b);

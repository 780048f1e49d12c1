#pragma once

#include <array>
#include <string>
#include <string_view>

/// Three header rows of a raw table, index 1 to 3 (index 0 is empty and never used). Each row is one text of
/// column names joined by the delimiter, position by position the same as the record.
using Kopfzeilen = std::array<std::string, 4>;

Kopfzeilen erstelleKernHeader();
/// `modus` is "excel" or "word", in any case: "excel" puts the labels into rows 1 and 2, "word" into rows 2
/// and 3, where it looks up row 1, which is empty then. Any other mode leaves row 3 alone.
Kopfzeilen erstelleBetrHeader(std::string_view modus);
Kopfzeilen erstelleDiagHeader();

/// The first and the second label of each column of the row, each followed by the delimiter.
struct Bezeichnungen {
    std::string erste;
    std::string zweite;
};

/// Looks the columns up among the variables; a column that is none stands as its own name in lower case.
Bezeichnungen sucheBezeichnungen(std::string_view spaltennamen, bool ohneWiederholung = false);

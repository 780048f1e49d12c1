#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What stands over a column of a raw table.
struct Spaltenkopf {
    std::string thema; ///< row 1
    std::string frage; ///< row 2
    std::string name;  ///< row 3; the name "VOID" has a field that no group fills

    bool operator==(const Spaltenkopf&) const = default;
};

/// One for each field of the record, in its order.
using Spaltenköpfe = std::vector<Spaltenkopf>;

Spaltenköpfe erstelleKernHeader();
/// `modus` is "excel" or "word", in any case. Any other leaves the topics and questions out.
Spaltenköpfe erstelleBetrHeader(std::string_view modus);
Spaltenköpfe erstelleDiagHeader();

/// Topic and question of the column by its name in any case; a column that is no variable has its own name in lower
/// case as its topic.
Spaltenkopf sucheBezeichnungen(std::string_view spaltenname);

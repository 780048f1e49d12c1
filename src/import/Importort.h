#pragma once

#include "store/Bestand.h"

#include <filesystem>

/// Where an import works.
struct Importort {
    const Bestand& bestand;             ///< the live tables, with files and box
    std::filesystem::path programm;     ///< the program folder, in which a facility's own instruction files lie
    std::filesystem::path installation; ///< the folder of those that the program brings
    std::filesystem::path importListe;  ///< the list that the import writes
};

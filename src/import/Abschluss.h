#pragma once

#include "store/Bestand.h"

#include <cstddef>
#include <filesystem>
#include <functional>

/// What follows the four stages of the import: the steps on the new tables in the work folder.

/// The three new tables and the scratch file through which each step rewrites them.
struct NeueTabellen {
    std::filesystem::path kernDat;
    std::filesystem::path betrDat;
    std::filesystem::path diagDat;
    std::filesystem::path dummyDat;
};

/// Keeps the first of equal lines of the care and the diagnosis table. Client lines all stay, as they always have.
void entferneDoppelte(Dateien& dateien, const NeueTabellen& tabellen);

/// Marks the care records as imported, gives them the reason "Eigene Problematik", and those whose client is
/// "Deutsche(r)" in the older client file the nation.
void markiereBetreuungen(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& kernAlt);

/// Sets the status of each client by `betrDat`, the live care table, which still holds what was there before the
/// import; the repair at the next start works it out anew.
void fülleStatus(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& betrDat);

struct Importzahlen {
    std::size_t klienten = 0;
    std::size_t betreuungen = 0;
};

/// Writes the list of the imported episodes, columns separated by tabs, and counts both tables.
Importzahlen schreibeImportListe(Dateien& dateien, const NeueTabellen& tabellen, const std::filesystem::path& liste);

/// Puts the new tables in the place of the live ones, all three or none. `davor` comes when they have been read and
/// nothing is written yet; a failure of it leaves the live tables as they are.
void ersetzeTabellen(const Bestand& bestand, const NeueTabellen& tabellen, const std::function<void()>& davor);

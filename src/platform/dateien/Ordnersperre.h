#pragma once

#include <filesystem>
#include <memory>

class Dateien;

/// A lock on a folder itself, whatever path, link, bind mount, session or user leads to it. It ends with the object,
/// and with the process, however that ends.
class Ordnersperre {
public:
    virtual ~Ordnersperre() = default;
};

/// The lock on the folder; nothing when somebody has it already. Throws Dateifehler when it can't be asked for.
std::unique_ptr<Ordnersperre> sperreOrdner(const std::filesystem::path& ordner);

/// The same for the folder of the records, which is made when it is missing. Laufzeitfehler names the folder and the
/// reason.
std::unique_ptr<Ordnersperre> sperreDatenordner(Dateien& dateien, const std::filesystem::path& ordner);

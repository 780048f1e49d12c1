#pragma once

#include "platform/dateien/Systemgriff.h"

#include <filesystem>

class Dateien;

/// A lock on the folder itself, whatever path, link, bind mount, session or user leads to it. It ends with the handle,
/// and with the process, however that ends. Not open when somebody has it already. Throws Dateifehler when it can't be
/// asked for.
Systemgriff sperreOrdner(const std::filesystem::path& ordner);

/// The same for the folder of the records, which is made when it is missing. Laufzeitfehler names the folder and the
/// reason.
Systemgriff sperreDatenordner(Dateien& dateien, const std::filesystem::path& ordner);

/// The same for a temporary folder, which is of this user or is not locked. Whatever can't be asked for counts as
/// somebody else's.
Systemgriff sperreWegwerfordner(const std::filesystem::path& ordner);

#pragma once

#include "platform/dateien/Dateizugriff.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

/// What the operations of all systems have in common. Each throws Dateifehler where it can't tell.

/// The names in the folder that are folders (or are none), sorted.
std::vector<std::filesystem::path> listeNamen(const std::filesystem::path& ordner, bool sindOrdner);
Fund fundAn(const std::filesystem::path& pfad);
bool istNameVergeben(const std::filesystem::path& pfad);
std::filesystem::path endeDerVerweise(const std::filesystem::path& pfad);
/// Seconds since 1970 as local time, "JJJJ-MM-TT hh.mm.ss".
std::string alsZeittext(std::int64_t sekunden);

#pragma once

#include "platform/dateien/Dateien.h"

#include <filesystem>
#include <string>
#include <string_view>

/// Stage 3 of the import: turns each comma-separated row of the older core data set into a row of the yearly
/// export, each column followed by ";". An old code that has no counterpart gives "FEHLER" in its column, without a
/// message.
void moImp3AltKDStoKDS(Dateien& dateien, const std::filesystem::path& aKDSKern,
                       const std::filesystem::path& aKDSDiagnose, const std::filesystem::path& kdsKern,
                       const std::filesystem::path& kdsDiagnose);

std::string kernAltNachNeu(std::string_view zeile);
std::string diagAltNachNeu(std::string_view zeile);

#pragma once

#include "platform/dateien/Dateien.h"

#include <filesystem>

/// Stage 4 of the import, the inverse of the yearly export: turns its rows back into records, by the
/// instruction tables of the string resources. A client's record comes with its first episode that has a
/// diagnosis row; an episode without one, and a client without any, are dropped. Personal data come from
/// `extraExp`.
///
/// A code that is not known stays in the record as a text that says so. An id that is no number from 1 to
/// 32767 is a Laufzeitfehler.
void moImp4KDStoMorvek(Dateien& dateien, const std::filesystem::path& kdsKern, const std::filesystem::path& kdsDiagnose,
                       const std::filesystem::path& kernDat, const std::filesystem::path& betrDat,
                       const std::filesystem::path& diagDat, const std::filesystem::path& extraExp);

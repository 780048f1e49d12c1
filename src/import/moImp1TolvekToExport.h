#pragma once

#include "platform/dateien/Dateien.h"

#include <filesystem>

/// Stage 1 of the import: parts the personal data from the rest. The older client file goes to `kernExp`
/// without names and with the year of birth alone, and in full to `extraExp`; the older care file goes to
/// `betreuungenExp` with an age value behind each line.
///
/// A date that can't be read and a client number that is none are a Laufzeitfehler.
void moImp1TolvekToExport(Dateien& dateien, const std::filesystem::path& kernAlt,
                          const std::filesystem::path& betreuungenAlt, const std::filesystem::path& kernExp,
                          const std::filesystem::path& betreuungenExp, const std::filesystem::path& extraExp);

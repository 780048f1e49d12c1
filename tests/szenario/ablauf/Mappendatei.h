#pragma once

#include <filesystem>

class Arbeitsmappe;

/// Writes the .xlsx file as it is handed to the spreadsheet program; makes folders on the way. Throws
/// Scheitern in a build that writes no workbooks.
void schreibeMappendatei(const Arbeitsmappe& mappe, const std::filesystem::path& ziel);

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// The files of the program folder as a scenario writes and reads them.

/// Writes the file; makes folders on the way.
void schreibeDatei(const std::filesystem::path& pfad, std::string_view inhalt);
/// The bytes of the file; throws Scheitern when there is none.
std::string liesDatei(const std::filesystem::path& pfad);
/// Appends the line with its line end; a last line without one gets it before.
void hängeZeileAn(const std::filesystem::path& pfad, const std::string& zeile);
/// The lines in the tables' code page, each ended by CR LF.
std::string alsDateiinhalt(const std::vector<std::u32string>& zeilen);
/// Copies the file, or the folder with all that is in it; what lies there already is overwritten, folders on the way
/// are made. (`std::filesystem::copy` takes any two files for the same one with some compilers for Windows.)
void kopiereNach(const std::filesystem::path& quelle, const std::filesystem::path& ziel);

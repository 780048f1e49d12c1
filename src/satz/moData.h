#pragma once

#include <array>
#include <string>
#include <string_view>

/// The catalogue of the 29 problem areas of the core data set (ICD-10). The group number 1 to 29 is the
/// index; index 0 is empty and never used. The order is the base of the record layout.
inline constexpr int höchsteGruppe = 29;

/// ICD-10 code, "F10" or "F55.1".
extern std::array<std::string, höchsteGruppe + 1> aryICD;
/// Full name; it also is the key of a row on the diagnosis page.
extern std::array<std::string, höchsteGruppe + 1> aryProblem;
/// Short name and its second line for a listing of two lines; filled, read by no screen.
extern std::array<std::string, höchsteGruppe + 1> aryProblemKurz;
extern std::array<std::string, höchsteGruppe + 1> aryProblemZusatz;

/// The full name of the group, also before the tables are filled; empty for a number that is no group.
std::string_view gruppenname(int gruppe);

/// The number that forms a group's variable names in the column headers ("100" in icd1001).
std::string gruppencode(int gruppe);

/// Fills the four tables; run once at start.
void baueProblemKatalog();

/// The group with the name, 0 for none.
int gruppeZuName(std::string_view name);

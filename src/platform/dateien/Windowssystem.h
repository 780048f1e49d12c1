#pragma once

#include <filesystem>
#include <string>

/// What every file operation on Windows needs; built there alone. Error numbers are those of GetLastError.

/// The reason in German (code page): what a person can do something about has a text of its own, the rest its number.
std::string windowsgrund(unsigned long fehler);

/// The path as the system takes it: "/" is "\", and one that is longer than the system's old limit of 260 characters
/// gets the prefix that lifts it, on a drive as on a network share.
std::wstring systempfad(const std::filesystem::path& pfad);

/// SECURITY_ATTRIBUTES for a new file or folder: the user, and as in the user's own folders the system (backups,
/// virus scanners) and the administrators of the machine; nobody else, whatever the folder hands down. nullptr, that is
/// what the folder hands down, where the user can't be found out. A file system without rights ignores them.
void* rechteDesEigentümers();

/// Gives the file or folder these rights when it belongs to the user and has others. The number of the error, 0 for
/// none.
unsigned long schließeAndereAus(const std::filesystem::path& pfad);

#pragma once

#include "platform/dateien/Systemgriff.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

/// What every file operation on Windows needs; built there alone. Numbers are those of the system's own headers.

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

/// How something is opened, as CreateFile has it: unless told otherwise a file that is there, shared with everybody.
struct Windowsöffnung {
    std::uint32_t zugriff;
    std::uint32_t merkmale = 0x80; ///< FILE_ATTRIBUTE_NORMAL
    std::uint32_t teilen = 7;      ///< FILE_SHARE_READ, FILE_SHARE_WRITE, FILE_SHARE_DELETE
    std::uint32_t anlegen = 3;     ///< OPEN_EXISTING
};

/// Opens what has this name (`systempfad`), or nothing, with the reason as the system's last error. A new file is its
/// owner's alone.
Systemgriff öffneName(const std::wstring& name, const Windowsöffnung& wie);
/// The handle for calls to the system.
void* nummer(const Systemgriff& griff);

/// Tries again for a moment when another program is in the way (virus scanners, indexers and backups open what was just
/// written); then throws Dateifehler, which names what is in the way on this path.
void führeBeharrlichAus(const std::filesystem::path& pfad, const std::function<bool()>& operation);
/// Opens a file with that patience.
Systemgriff öffneBeharrlich(const std::filesystem::path& pfad, const Windowsöffnung& wie);

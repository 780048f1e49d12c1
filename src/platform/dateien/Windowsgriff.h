#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

/// Open files on Windows, and the patience that this system asks for; built there alone.

/// Throws Dateifehler with the system's last error unless the operation has succeeded.
void prüfeSystem(bool gelungen);

/// Tries again for a moment when another program is in the way (virus scanners, indexers and backups open what was just
/// written); then throws Dateifehler, which names what is in the way on this path.
void führeBeharrlichAus(const std::filesystem::path& pfad, const std::function<bool()>& operation);

/// How a file is opened; the numbers are those of CreateFile.
struct Windowsöffnung {
    const std::filesystem::path& pfad;
    std::uint32_t zugriff;
    std::uint32_t teilen;
    std::uint32_t anlegen;
    std::uint32_t merkmale = 0x80; ///< FILE_ATTRIBUTE_NORMAL
};

/// Owns the handle of a file.
class Windowsgriff {
public:
    /// Opens as `führeBeharrlichAus` does. A new file is its owner's alone.
    explicit Windowsgriff(const Windowsöffnung& öffnung);
    Windowsgriff(const Windowsgriff&) = delete;
    Windowsgriff& operator=(const Windowsgriff&) = delete;
    ~Windowsgriff();

    void* griff() const { return m_griff; }
    void schließe();

private:
    void* m_griff;
};

#include "platform/dateien/Wegwerfordner.h"

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Windowssystem.h"
#include "platform/text/Text.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <random>
#include <string>
#include <system_error>

#include <windows.h>

// The lock is a file that nobody else can open; the system removes it when the process ends.

namespace fs = std::filesystem;

namespace {

HANDLE sperre(const fs::path& ordner)
{
    return CreateFileW((ordner / L"in-arbeit").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                       FILE_FLAG_DELETE_ON_CLOSE, nullptr);
}

/// What is write-protected is not removed here unless it is told so before.
void entferne(const fs::path& ordner)
{
    std::error_code egal;
    for (const auto& eintrag : fs::recursive_directory_iterator(ordner, egal)) {
        SetFileAttributesW(eintrag.path().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    fs::remove_all(ordner, egal);
}

} // namespace

Wegwerfordner::Wegwerfordner(std::string_view vorsilbe)
{
    std::error_code fehler;
    const fs::path ablage = fs::temp_directory_path(fehler);
    HANDLE schloss = INVALID_HANDLE_VALUE;
    DWORD grund = ERROR_PATH_NOT_FOUND;
    // between making and locking, the clearing of another start may take the folder away
    constexpr int versuche = 10;
    for (int versuch = 0; !fehler && versuch < versuche && schloss == INVALID_HANDLE_VALUE; ++versuch) {
        m_pfad = ablage / (std::string(vorsilbe) + std::to_string(std::random_device()()));
        auto* rechte = static_cast<SECURITY_ATTRIBUTES*>(rechteDesEigentümers());
        schloss = CreateDirectoryW(m_pfad.c_str(), rechte) == 0 ? INVALID_HANDLE_VALUE : sperre(m_pfad);
        grund = GetLastError();
    }
    if (schloss == INVALID_HANDLE_VALUE) {
        throw Laufzeitfehler(verbinde("In \""_t, pfadtext(ablage), "\" kann kein Zwischenordner angelegt werden: "_t,
                                      windowsgrund(grund)));
    }
    m_schloss = reinterpret_cast<std::intptr_t>(schloss);
}

Wegwerfordner::~Wegwerfordner()
{
    CloseHandle(reinterpret_cast<HANDLE>(m_schloss));
    if (m_meiner) {
        entferne(m_pfad);
    }
}

void Wegwerfordner::räumeAuf(std::string_view vorsilbe)
{
    std::error_code egal;
    for (const auto& eintrag : fs::directory_iterator(fs::temp_directory_path(egal), egal)) {
        if (!eintrag.path().filename().string().starts_with(vorsilbe)) {
            continue;
        }
        if (HANDLE schloss = sperre(eintrag.path()); schloss != INVALID_HANDLE_VALUE) {
            CloseHandle(schloss);
            entferne(eintrag.path());
        }
    }
}

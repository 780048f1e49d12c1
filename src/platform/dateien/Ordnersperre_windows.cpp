#include "platform/dateien/Ordnersperre.h"

#include "platform/dateien/Dateizugriff.h"
#include "platform/dateien/Windowssystem.h"

#include <windows.h>

namespace {

/// Folders can't be locked on this system: a file in it that nobody else may open, and that goes with its handle. It
/// lies in the folder itself, so whatever drive letter, share or link leads there leads to it too.
Systemgriff öffneSperrdatei(const std::filesystem::path& datei)
{
    return öffneName(systempfad(datei),
                     {.zugriff = GENERIC_READ | GENERIC_WRITE | DELETE,
                      .merkmale = FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT,
                      .teilen = 0,
                      .anlegen = OPEN_ALWAYS});
}

} // namespace

/// A file that is on its way out, or that a scanner looks at for a moment, is no other instance.
Systemgriff sperreOrdner(const std::filesystem::path& ordner)
{
    constexpr int versuche = 25;
    constexpr DWORD pauseMs = 20;
    const auto datei = ordner / L"Tolvek7.sperre";
    auto griff = öffneSperrdatei(datei);
    for (int i = 1; i < versuche && !griff.istOffen(); ++i) {
        if (const DWORD fehler = ::GetLastError(); fehler != ERROR_SHARING_VIOLATION && fehler != ERROR_ACCESS_DENIED) {
            break;
        }
        ::Sleep(pauseMs);
        griff = öffneSperrdatei(datei);
    }
    prüfeSystem(griff.istOffen() || ::GetLastError() == ERROR_SHARING_VIOLATION);
    return griff;
}

Systemgriff sperreWegwerfordner(const std::filesystem::path& ordner)
{
    return öffneSperrdatei(ordner / L"in-arbeit");
}

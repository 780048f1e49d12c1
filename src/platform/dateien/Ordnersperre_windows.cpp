#include "platform/dateien/Ordnersperre.h"

#include "platform/dateien/Dateizugriff.h"
#include "platform/dateien/Windowssystem.h"

#include <windows.h>

namespace {

/// Folders can't be locked on this system: a file in it that nobody else may open, and that goes with its handle. It
/// lies in the folder itself, so whatever drive letter, share or link leads there leads to it too.
class WindowsSperre : public Ordnersperre {
public:
    explicit WindowsSperre(HANDLE griff) : m_griff(griff) {}
    WindowsSperre(const WindowsSperre&) = delete;
    WindowsSperre& operator=(const WindowsSperre&) = delete;
    ~WindowsSperre() override { ::CloseHandle(m_griff); }

private:
    HANDLE m_griff;
};

HANDLE öffne(const std::wstring& name)
{
    return ::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0,
                         static_cast<SECURITY_ATTRIBUTES*>(rechteDesEigentümers()), OPEN_ALWAYS,
                         FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
}

/// A file that is on its way out, or that a scanner looks at for a moment, is no other instance.
HANDLE öffneBeharrlich(const std::wstring& name)
{
    constexpr int versuche = 25;
    constexpr DWORD pauseMs = 20;
    HANDLE griff = öffne(name);
    for (int i = 1; i < versuche && griff == INVALID_HANDLE_VALUE; ++i) {
        if (const DWORD fehler = ::GetLastError(); fehler != ERROR_SHARING_VIOLATION && fehler != ERROR_ACCESS_DENIED) {
            break;
        }
        ::Sleep(pauseMs);
        griff = öffne(name);
    }
    return griff;
}

} // namespace

std::unique_ptr<Ordnersperre> sperreOrdner(const std::filesystem::path& ordner)
{
    const HANDLE griff = öffneBeharrlich(systempfad(ordner / L"Tolvek7.sperre"));
    if (griff != INVALID_HANDLE_VALUE) {
        return std::make_unique<WindowsSperre>(griff);
    }
    if (const DWORD fehler = ::GetLastError(); fehler != ERROR_SHARING_VIOLATION) {
        throw Dateifehler(windowsgrund(fehler));
    }
    return nullptr;
}

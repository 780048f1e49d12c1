#include "platform/dateien/Ordnersperre.h"

#include "platform/dateien/Dateizugriff.h"
#include "platform/dateien/Systemgrund.h"

#include <system_error>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace {

/// Folders can't be locked on this system: a file in it that nobody else may open, and that goes with its handle.
class WindowsSperre : public Ordnersperre {
public:
    explicit WindowsSperre(HANDLE griff) : m_griff(griff) {}
    WindowsSperre(const WindowsSperre&) = delete;
    WindowsSperre& operator=(const WindowsSperre&) = delete;
    ~WindowsSperre() override { ::CloseHandle(m_griff); }

private:
    HANDLE m_griff;
};

} // namespace

std::unique_ptr<Ordnersperre> sperreOrdner(const std::filesystem::path& ordner)
{
    const auto datei = ordner / L"Tolvek7.sperre";
    const HANDLE griff = ::CreateFileW(datei.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                       FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (griff != INVALID_HANDLE_VALUE) {
        return std::make_unique<WindowsSperre>(griff);
    }
    if (::GetLastError() == ERROR_SHARING_VIOLATION) {
        return nullptr;
    }
    throw Dateifehler(systemgrund(std::error_code(static_cast<int>(::GetLastError()), std::system_category())));
}

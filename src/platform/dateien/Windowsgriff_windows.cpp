#include "platform/dateien/Windowsgriff.h"

#include "platform/dateien/Dateizugriff.h"
#include "platform/dateien/Windowssystem.h"
#include "platform/text/Text.h"

#include <utility>

#include <windows.h>

namespace fs = std::filesystem;

namespace {

constexpr DWORD geduldMs = 2000;
constexpr DWORD pauseMs = 20;

/// Access is also denied where a name is about to go because somebody still has the file open that was removed, and
/// where a file is to be replaced that somebody has open.
bool gehtVielleichtGleich(DWORD fehler)
{
    return fehler == ERROR_SHARING_VIOLATION || fehler == ERROR_LOCK_VIOLATION || fehler == ERROR_ACCESS_DENIED ||
           fehler == ERROR_USER_MAPPED_FILE || fehler == ERROR_DELETE_PENDING;
}

/// Whether somebody has the file open in a way that keeps others from replacing or removing it.
bool istGeöffnet(const std::wstring& name)
{
    constexpr DWORD alleTeilen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE griff =
        ::CreateFileW(name.c_str(), DELETE, alleTeilen, nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (griff != INVALID_HANDLE_VALUE) {
        ::CloseHandle(griff);
        return false;
    }
    return ::GetLastError() == ERROR_SHARING_VIOLATION;
}

/// "Access denied" has many reasons; nothing for those that only a right would help with.
std::string_view genauererGrund(const std::wstring& name)
{
    const DWORD merkmale = ::GetFileAttributesW(name.c_str());
    if (merkmale == INVALID_FILE_ATTRIBUTES) {
        return {};
    }
    if ((merkmale & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return "unter diesem Namen gibt es einen Ordner"_t;
    }
    if ((merkmale & FILE_ATTRIBUTE_READONLY) != 0) {
        return "die Datei ist schreibgeschützt"_t;
    }
    return {};
}

} // namespace

void prüfeSystem(bool gelungen)
{
    if (!gelungen) {
        throw Dateifehler(windowsgrund(::GetLastError()));
    }
}

void führeBeharrlichAus(const fs::path& pfad, const std::function<bool()>& operation)
{
    const auto name = systempfad(pfad);
    const auto anfang = ::GetTickCount64();
    while (!operation()) {
        const DWORD fehler = ::GetLastError();
        const auto genauer = fehler == ERROR_ACCESS_DENIED ? genauererGrund(name) : std::string_view{};
        if (!genauer.empty()) {
            throw Dateifehler(std::string(genauer));
        }
        if (!gehtVielleichtGleich(fehler)) {
            throw Dateifehler(windowsgrund(fehler));
        }
        if (::GetTickCount64() - anfang >= geduldMs) {
            throw Dateifehler(windowsgrund(istGeöffnet(name) ? ERROR_SHARING_VIOLATION : fehler));
        }
        ::Sleep(pauseMs);
    }
}

Windowsgriff::Windowsgriff(const Windowsöffnung& öffnung) : m_griff(INVALID_HANDLE_VALUE)
{
    const auto name = systempfad(öffnung.pfad);
    auto* rechte = static_cast<SECURITY_ATTRIBUTES*>(rechteDesEigentümers());
    führeBeharrlichAus(öffnung.pfad, [&] {
        m_griff = ::CreateFileW(name.c_str(), öffnung.zugriff, öffnung.teilen, rechte, öffnung.anlegen,
                                öffnung.merkmale, nullptr);
        return m_griff != INVALID_HANDLE_VALUE;
    });
}

Windowsgriff::~Windowsgriff()
{
    if (m_griff != INVALID_HANDLE_VALUE) {
        ::CloseHandle(m_griff);
    }
}

void Windowsgriff::schließe()
{
    prüfeSystem(::CloseHandle(std::exchange(m_griff, INVALID_HANDLE_VALUE)) != 0);
}

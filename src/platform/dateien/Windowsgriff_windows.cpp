#include "platform/dateien/Windowssystem.h"

#include "platform/dateien/Dateizugriff.h"
#include "platform/text/Text.h"

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
    const auto griff = öffneName(name, {.zugriff = DELETE, .merkmale = FILE_FLAG_OPEN_REPARSE_POINT});
    return !griff.istOffen() && ::GetLastError() == ERROR_SHARING_VIOLATION;
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

Systemgriff öffneName(const std::wstring& name, const Windowsöffnung& wie)
{
    auto* rechte = static_cast<SECURITY_ATTRIBUTES*>(rechteDesEigentümers());
    return Systemgriff(reinterpret_cast<std::intptr_t>(
        ::CreateFileW(name.c_str(), wie.zugriff, wie.teilen, rechte, wie.anlegen, wie.merkmale, nullptr)));
}

void* nummer(const Systemgriff& griff)
{
    return reinterpret_cast<void*>(griff.nummer());
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
            throw Dateifehler(systemgrund(fehler));
        }
        if (::GetTickCount64() - anfang >= geduldMs) {
            throw Dateifehler(systemgrund(istGeöffnet(name) ? ERROR_SHARING_VIOLATION : fehler));
        }
        ::Sleep(pauseMs);
    }
}

Systemgriff öffneBeharrlich(const fs::path& pfad, const Windowsöffnung& wie)
{
    Systemgriff griff;
    führeBeharrlichAus(pfad, [&, name = systempfad(pfad)] {
        griff = öffneName(name, wie);
        return griff.istOffen();
    });
    return griff;
}

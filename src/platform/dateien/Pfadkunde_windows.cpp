#include "platform/dateien/Pfadkunde.h"

#include "platform/dateien/Windowssystem.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <memory>

#include <windows.h>

// The standard library of this compiler knows no links on Windows and no long paths.

namespace fs = std::filesystem;

namespace {

[[noreturn]] void scheitere(DWORD fehler)
{
    throw Dateifehler(windowsgrund(fehler));
}

bool istNichtDa(DWORD fehler)
{
    return fehler == ERROR_FILE_NOT_FOUND || fehler == ERROR_PATH_NOT_FOUND || fehler == ERROR_DIRECTORY;
}

struct Schließer {
    void operator()(void* griff) const { ::CloseHandle(griff); }
};
using Griff = std::unique_ptr<void, Schließer>;

/// What the path leads to, links followed; nothing where it can't be opened, with the reason as the last error.
Griff öffneEnde(const std::wstring& name)
{
    constexpr DWORD alleTeilen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE griff = ::CreateFileW(name.c_str(), FILE_READ_ATTRIBUTES, alleTeilen, nullptr, OPEN_EXISTING,
                                 FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    return Griff(griff == INVALID_HANDLE_VALUE ? nullptr : griff);
}

/// A name that stands for another one; files that are fetched from elsewhere when they are read are none.
bool istVerweis(const std::wstring& name)
{
    WIN32_FIND_DATAW angaben = {};
    HANDLE suche = ::FindFirstFileW(name.c_str(), &angaben);
    if (suche == INVALID_HANDLE_VALUE) {
        return false;
    }
    ::FindClose(suche);
    return (angaben.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           (angaben.dwReserved0 == IO_REPARSE_TAG_SYMLINK || angaben.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
}

/// "\\?\C:\…" as "C:\…", "\\?\UNC\server\…" as "\\server\…".
fs::path ohneVorsatz(const std::wstring& name)
{
    constexpr std::wstring_view netz = LR"(\\?\UNC\)";
    constexpr std::wstring_view platte = LR"(\\?\)";
    if (name.starts_with(netz)) {
        return LR"(\\)" + name.substr(netz.size());
    }
    return name.starts_with(platte) ? name.substr(platte.size()) : name;
}

} // namespace

std::vector<fs::path> listeNamen(const fs::path& ordner, bool sindOrdner)
{
    std::vector<fs::path> namen;
    WIN32_FIND_DATAW angaben = {};
    HANDLE suche = ::FindFirstFileW(systempfad(ordner / L"*").c_str(), &angaben);
    if (suche == INVALID_HANDLE_VALUE) {
        scheitere(::GetLastError());
    }
    do {
        const std::wstring_view name = angaben.cFileName;
        const bool istOrdner = (angaben.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (istOrdner == sindOrdner && name != L"." && name != L"..") {
            namen.emplace_back(name);
        }
    } while (::FindNextFileW(suche, &angaben) != 0);
    const DWORD fehler = ::GetLastError();
    ::FindClose(suche);
    if (fehler != ERROR_NO_MORE_FILES) {
        scheitere(fehler);
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

Fund fundAn(const fs::path& pfad)
{
    const auto name = systempfad(pfad);
    const auto griff = öffneEnde(name);
    if (!griff) {
        const DWORD fehler = ::GetLastError();
        if (!istNichtDa(fehler)) {
            scheitere(fehler);
        }
        if (istVerweis(name)) {
            throw Dateifehler(std::string("der Verweis führt auf etwas, das nicht da ist"_t));
        }
        return Fund::Nichts;
    }
    if (::GetFileType(griff.get()) != FILE_TYPE_DISK) {
        return Fund::Anderes;
    }
    BY_HANDLE_FILE_INFORMATION angaben = {};
    if (::GetFileInformationByHandle(griff.get(), &angaben) == 0) {
        scheitere(::GetLastError());
    }
    return (angaben.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Fund::Ordner : Fund::Datei;
}

bool istNameVergeben(const fs::path& pfad)
{
    const auto name = systempfad(pfad);
    return ::GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES || istVerweis(name);
}

fs::path endeDerVerweise(const fs::path& pfad)
{
    const auto name = systempfad(pfad);
    if (!istVerweis(name)) {
        return pfad;
    }
    const auto griff = öffneEnde(name);
    if (!griff) {
        scheitere(::GetLastError());
    }
    std::wstring ende(32'768, L'\0');
    const DWORD länge = ::GetFinalPathNameByHandleW(griff.get(), ende.data(), static_cast<DWORD>(ende.size()),
                                                    FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    if (länge == 0 || länge >= ende.size()) {
        scheitere(länge == 0 ? ::GetLastError() : ERROR_FILENAME_EXCED_RANGE);
    }
    ende.resize(länge);
    return ohneVorsatz(ende);
}

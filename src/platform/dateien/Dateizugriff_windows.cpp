#include "platform/dateien/Dateizugriff.h"

#include "platform/dateien/Windowssystem.h"
#include "platform/text/Text.h"

#include <algorithm>

#include <windows.h>

// What differs here from other systems: a file that somebody has open may be in the way of others, so what virus
// scanners and indexers do for a moment is waited for; a folder can't always be flushed, so renaming goes through to
// the disk by itself; and a name can be read-only.
//
// A table is replaced by MoveFileEx and not by ReplaceFile: it is one operation of the file system, which leaves the
// old file or the new one, while ReplaceFile renames twice and can stop in between.
//
// The standard library of this compiler knows no links on Windows and no long paths.

namespace fs = std::filesystem;

namespace {

/// No more than the system takes at once.
DWORD stückVon(std::size_t menge)
{
    return static_cast<DWORD>(std::min(menge, std::size_t{1} << 24U));
}

/// Seconds since 1970 of a file time (tenths of a microsecond since 1601).
std::int64_t sekundenVon(const FILETIME& zeit)
{
    constexpr std::uint64_t jeSekunde = 10'000'000;
    constexpr std::int64_t bis1970 = 11'644'473'600;
    const auto zehntel = (std::uint64_t{zeit.dwHighDateTime} << 32U) | zeit.dwLowDateTime;
    return static_cast<std::int64_t>(zehntel / jeSekunde) - bis1970;
}

/// A link to a folder is removed as a folder is, and takes nothing of the folder with it.
bool entferneNamen(const std::wstring& name)
{
    const DWORD merkmale = ::GetFileAttributesW(name.c_str());
    constexpr DWORD ordnerverweis = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    const bool istOrdnerverweis = merkmale != INVALID_FILE_ATTRIBUTES && (merkmale & ordnerverweis) == ordnerverweis;
    return (istOrdnerverweis ? ::RemoveDirectoryW(name.c_str()) : ::DeleteFileW(name.c_str())) != 0;
}

/// A system that can't flush a folder says so by one of these; the renaming has gone through to the disk then.
bool kannOrdnerNichtSichern(DWORD fehler)
{
    return fehler == ERROR_ACCESS_DENIED || fehler == ERROR_INVALID_FUNCTION || fehler == ERROR_NOT_SUPPORTED ||
           fehler == ERROR_INVALID_PARAMETER || fehler == ERROR_INVALID_HANDLE;
}

bool istNichtDa(DWORD fehler)
{
    return fehler == ERROR_FILE_NOT_FOUND || fehler == ERROR_PATH_NOT_FOUND || fehler == ERROR_DIRECTORY;
}

/// What the path leads to, links followed; nothing where it can't be opened, with the reason as the last error.
Systemgriff öffneEnde(const std::wstring& name)
{
    return öffneName(name, {.zugriff = FILE_READ_ATTRIBUTES, .merkmale = FILE_FLAG_BACKUP_SEMANTICS});
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

Systemgriff öffneZumLesen(const fs::path& pfad)
{
    return öffneBeharrlich(pfad, {.zugriff = GENERIC_READ});
}

std::uint64_t längeVon(const Systemgriff& griff)
{
    if (::GetFileType(nummer(griff)) != FILE_TYPE_DISK) {
        throw Dateifehler(std::string("unter diesem Namen liegt keine gewöhnliche Datei"_t));
    }
    LARGE_INTEGER länge = {};
    prüfeSystem(::GetFileSizeEx(nummer(griff), &länge) != 0);
    return static_cast<std::uint64_t>(länge.QuadPart);
}

std::size_t liesAb(const Systemgriff& griff, std::uint64_t ab, std::span<char> ziel)
{
    OVERLAPPED stelle = {};
    stelle.Offset = static_cast<DWORD>(ab & 0xFFFFFFFFU);
    stelle.OffsetHigh = static_cast<DWORD>(ab >> 32U);
    DWORD gelesen = 0;
    const bool gelungen = ::ReadFile(nummer(griff), ziel.data(), stückVon(ziel.size()), &gelesen, &stelle) != 0;
    prüfeSystem(gelungen || ::GetLastError() == ERROR_HANDLE_EOF);
    return gelesen;
}

std::size_t OffeneDatei::schreibe(std::string_view bytes)
{
    DWORD geschrieben = 0;
    prüfeSystem(::WriteFile(nummer(m_griff), bytes.data(), stückVon(bytes.size()), &geschrieben, nullptr) != 0);
    return geschrieben;
}

void OffeneDatei::sichereAufPlatte()
{
    prüfeSystem(::FlushFileBuffers(nummer(m_griff)) != 0);
}

/// A new file is made under its own name even where a link of that name leads elsewhere: it fails then.
std::unique_ptr<OffeneDatei> Dateizugriff::öffne(const fs::path& pfad, Öffnung wie)
{
    const bool neu = wie == Öffnung::Neu;
    return std::make_unique<OffeneDatei>(
        öffneBeharrlich(pfad, {.zugriff = GENERIC_WRITE,
                               .merkmale = FILE_ATTRIBUTE_NORMAL | (neu ? FILE_FLAG_OPEN_REPARSE_POINT : 0U),
                               .teilen = FILE_SHARE_READ | FILE_SHARE_DELETE,
                               .anlegen = neu ? DWORD{CREATE_NEW} : DWORD{CREATE_ALWAYS}}));
}

void Dateizugriff::benenneUm(const fs::path& von, const fs::path& nach)
{
    constexpr DWORD wie = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    führeBeharrlichAus(nach, [alt = systempfad(von), neu = systempfad(nach)] {
        return ::MoveFileExW(alt.c_str(), neu.c_str(), wie) != 0;
    });
}

void Dateizugriff::lösche(const fs::path& pfad)
{
    führeBeharrlichAus(pfad, [name = systempfad(pfad)] { return entferneNamen(name); });
}

void Dateizugriff::verknüpfe(const fs::path& von, const fs::path& nach)
{
    prüfeSystem(::CreateHardLinkW(systempfad(nach).c_str(), systempfad(von).c_str(), nullptr) != 0);
}

void Dateizugriff::legeOrdnerAn(const fs::path& pfad)
{
    auto* rechte = static_cast<SECURITY_ATTRIBUTES*>(rechteDesEigentümers());
    prüfeSystem(::CreateDirectoryW(systempfad(pfad).c_str(), rechte) != 0);
}

void Dateizugriff::entferneOrdner(const fs::path& pfad)
{
    führeBeharrlichAus(pfad, [name = systempfad(pfad)] { return ::RemoveDirectoryW(name.c_str()) != 0; });
}

void Dateizugriff::sichereOrdnerAufPlatte(const fs::path& pfad)
{
    const auto griff = öffneName(systempfad(pfad), {.zugriff = FILE_ADD_FILE, .merkmale = FILE_FLAG_BACKUP_SEMANTICS});
    const bool gelungen = griff.istOffen() && ::FlushFileBuffers(nummer(griff)) != 0;
    prüfeSystem(gelungen || kannOrdnerNichtSichern(::GetLastError()));
}

void Dateizugriff::verwehreAnderen(const fs::path& pfad)
{
    if (const auto fehler = schließeAndereAus(pfad); fehler != ERROR_SUCCESS) {
        throw Dateifehler(systemgrund(fehler));
    }
}

Fund Dateizugriff::findet(const fs::path& pfad)
{
    const auto name = systempfad(pfad);
    const auto griff = öffneEnde(name);
    if (!griff.istOffen()) {
        prüfeSystem(istNichtDa(::GetLastError()));
        if (istVerweis(name)) {
            throw Dateifehler(std::string("der Verweis führt auf etwas, das nicht da ist"_t));
        }
        return Fund::Nichts;
    }
    if (::GetFileType(nummer(griff)) != FILE_TYPE_DISK) {
        return Fund::Anderes;
    }
    BY_HANDLE_FILE_INFORMATION angaben = {};
    prüfeSystem(::GetFileInformationByHandle(nummer(griff), &angaben) != 0);
    return (angaben.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Fund::Ordner : Fund::Datei;
}

bool Dateizugriff::istVergeben(const fs::path& pfad)
{
    const auto name = systempfad(pfad);
    return ::GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES || istVerweis(name);
}

fs::path Dateizugriff::ziel(const fs::path& pfad)
{
    const auto name = systempfad(pfad);
    if (!istVerweis(name)) {
        return pfad;
    }
    const auto griff = geprüft(öffneEnde(name));
    std::wstring ende(32'768, L'\0');
    const DWORD länge = ::GetFinalPathNameByHandleW(nummer(griff), ende.data(), static_cast<DWORD>(ende.size()),
                                                    FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    prüfeSystem(länge != 0);
    if (länge >= ende.size()) {
        throw Dateifehler(systemgrund(ERROR_FILENAME_EXCED_RANGE));
    }
    ende.resize(länge);
    return ohneVorsatz(ende);
}

std::int64_t Dateizugriff::zeitVon(const fs::path& pfad)
{
    WIN32_FILE_ATTRIBUTE_DATA angaben = {};
    prüfeSystem(::GetFileAttributesExW(systempfad(pfad).c_str(), GetFileExInfoStandard, &angaben) != 0);
    return sekundenVon(angaben.ftLastWriteTime);
}

std::vector<fs::path> Dateizugriff::namenIn(const fs::path& ordner, bool sindOrdner)
{
    std::vector<fs::path> namen;
    WIN32_FIND_DATAW angaben = {};
    HANDLE suche = ::FindFirstFileW(systempfad(ordner / L"*").c_str(), &angaben);
    prüfeSystem(suche != INVALID_HANDLE_VALUE);
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
        throw Dateifehler(systemgrund(fehler));
    }
    std::sort(namen.begin(), namen.end());
    return namen;
}

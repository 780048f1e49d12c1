#include "platform/dateien/Dateizugriff.h"

#include "platform/dateien/Pfadkunde.h"
#include "platform/dateien/Windowsgriff.h"
#include "platform/dateien/Windowssystem.h"
#include "platform/text/Text.h"

#include <algorithm>
#include <cstdint>

#include <windows.h>

// What differs here from other systems: a file that somebody has open may be in the way of others, so what virus
// scanners and indexers do for a moment is waited for; a folder can't always be flushed, so renaming goes through to
// the disk by itself; and a name can be read-only.
//
// A table is replaced by MoveFileEx and not by ReplaceFile: it is one operation of the file system, which leaves the
// old file or the new one, while ReplaceFile renames twice and can stop in between.

namespace fs = std::filesystem;

namespace {

constexpr DWORD alleTeilen = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::uint64_t längeVon(const Windowsgriff& griff)
{
    if (::GetFileType(griff.griff()) != FILE_TYPE_DISK) {
        throw Dateifehler(std::string("unter diesem Namen liegt keine gewöhnliche Datei"_t));
    }
    LARGE_INTEGER länge = {};
    prüfeSystem(::GetFileSizeEx(griff.griff(), &länge) != 0);
    return static_cast<std::uint64_t>(länge.QuadPart);
}

Windowsgriff öffneZumLesen(const fs::path& pfad)
{
    return Windowsgriff({.pfad = pfad, .zugriff = GENERIC_READ, .teilen = alleTeilen, .anlegen = OPEN_EXISTING});
}

std::string liesBisEnde(const fs::path& pfad, std::uint64_t ab)
{
    const auto griff = öffneZumLesen(pfad);
    const auto länge = längeVon(griff);
    LARGE_INTEGER stelle = {};
    stelle.QuadPart = static_cast<LONGLONG>(ab);
    prüfeSystem(::SetFilePointerEx(griff.griff(), stelle, nullptr, FILE_BEGIN) != 0);
    std::string text(static_cast<std::size_t>(länge - std::min(länge, ab)) + 1, '\0'); // one more, to see the end
    std::size_t ort = 0;
    for (;;) {
        if (ort == text.size()) {
            text.resize(2 * text.size());
        }
        DWORD gelesen = 0;
        const auto menge = static_cast<DWORD>(std::min<std::size_t>(text.size() - ort, std::size_t{1} << 24U));
        prüfeSystem(::ReadFile(griff.griff(), text.data() + ort, menge, &gelesen, nullptr) != 0);
        if (gelesen == 0) {
            break;
        }
        ort += gelesen;
    }
    text.resize(ort);
    return text;
}

/// A new file is made under its own name even where a link of that name leads elsewhere: it fails then.
class WindowsDatei : public OffeneDatei {
public:
    WindowsDatei(const fs::path& pfad, Öffnung wie)
        : m_griff({.pfad = pfad,
                   .zugriff = GENERIC_WRITE,
                   .teilen = FILE_SHARE_READ | FILE_SHARE_DELETE,
                   .anlegen = wie == Öffnung::Leeren ? DWORD{CREATE_ALWAYS} : DWORD{CREATE_NEW},
                   .merkmale = FILE_ATTRIBUTE_NORMAL | (wie == Öffnung::Neu ? FILE_FLAG_OPEN_REPARSE_POINT : 0U)})
    {}
    std::size_t schreibe(std::string_view bytes) override
    {
        DWORD geschrieben = 0;
        const auto menge = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), std::size_t{1} << 24U));
        prüfeSystem(::WriteFile(m_griff.griff(), bytes.data(), menge, &geschrieben, nullptr) != 0);
        return geschrieben;
    }
    void sichereAufPlatte() override { prüfeSystem(::FlushFileBuffers(m_griff.griff()) != 0); }
    void schließe() override { m_griff.schließe(); }

private:
    Windowsgriff m_griff;
};

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

class WindowsZugriff : public Dateizugriff {
public:
    std::unique_ptr<Dateiinhalt> lies(const fs::path& pfad, std::uint64_t ab) override
    {
        return std::make_unique<Dateiinhalt>(liesBisEnde(pfad, ab));
    }
    std::uint64_t länge(const fs::path& pfad) override { return längeVon(öffneZumLesen(pfad)); }
    std::unique_ptr<OffeneDatei> öffne(const fs::path& pfad, Öffnung wie) override
    {
        return std::make_unique<WindowsDatei>(pfad, wie);
    }
    void benenneUm(const fs::path& von, const fs::path& nach) override
    {
        const auto alt = systempfad(von);
        const auto neu = systempfad(nach);
        constexpr DWORD wie = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        führeBeharrlichAus(nach, [&] { return ::MoveFileExW(alt.c_str(), neu.c_str(), wie) != 0; });
    }
    void lösche(const fs::path& pfad) override
    {
        führeBeharrlichAus(pfad, [name = systempfad(pfad)] { return entferneNamen(name); });
    }
    void verknüpfe(const fs::path& von, const fs::path& nach) override
    {
        prüfeSystem(::CreateHardLinkW(systempfad(nach).c_str(), systempfad(von).c_str(), nullptr) != 0);
    }
    void legeOrdnerAn(const fs::path& pfad) override
    {
        auto* rechte = static_cast<SECURITY_ATTRIBUTES*>(rechteDesEigentümers());
        prüfeSystem(::CreateDirectoryW(systempfad(pfad).c_str(), rechte) != 0);
    }
    void entferneOrdner(const fs::path& pfad) override
    {
        führeBeharrlichAus(pfad, [name = systempfad(pfad)] { return ::RemoveDirectoryW(name.c_str()) != 0; });
    }
    void sichereOrdnerAufPlatte(const fs::path& pfad) override
    {
        HANDLE griff = ::CreateFileW(systempfad(pfad).c_str(), FILE_ADD_FILE, alleTeilen, nullptr, OPEN_EXISTING,
                                     FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        DWORD fehler = griff == INVALID_HANDLE_VALUE ? ::GetLastError() : ERROR_SUCCESS;
        if (griff != INVALID_HANDLE_VALUE) {
            fehler = ::FlushFileBuffers(griff) != 0 ? ERROR_SUCCESS : ::GetLastError();
            ::CloseHandle(griff);
        }
        if (fehler != ERROR_SUCCESS && !kannOrdnerNichtSichern(fehler)) {
            throw Dateifehler(windowsgrund(fehler));
        }
    }
    void verwehreAnderen(const fs::path& pfad) override
    {
        if (const auto fehler = schließeAndereAus(pfad); fehler != ERROR_SUCCESS) {
            throw Dateifehler(windowsgrund(fehler));
        }
    }
    Fund findet(const fs::path& pfad) override { return fundAn(pfad); }
    bool istVergeben(const fs::path& pfad) override { return istNameVergeben(pfad); }
    fs::path ziel(const fs::path& pfad) override { return endeDerVerweise(pfad); }
    std::string zeitVon(const fs::path& pfad) override
    {
        WIN32_FILE_ATTRIBUTE_DATA angaben = {};
        prüfeSystem(::GetFileAttributesExW(systempfad(pfad).c_str(), GetFileExInfoStandard, &angaben) != 0);
        return alsZeittext(sekundenVon(angaben.ftLastWriteTime));
    }
    std::vector<fs::path> namenIn(const fs::path& ordner, bool sindOrdner) override
    {
        return listeNamen(ordner, sindOrdner);
    }
};

} // namespace

std::unique_ptr<Dateizugriff> erzeugeDateizugriff()
{
    return std::make_unique<WindowsZugriff>();
}

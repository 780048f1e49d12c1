#include "platform/dateien/Dateizugriff.h"

#include "platform/dateien/Pfadkunde.h"
#include "platform/dateien/Systemgrund.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void scheitere()
{
    throw Dateifehler(systemgrund(std::error_code(static_cast<int>(::GetLastError()), std::system_category())));
}

void prüfe(bool gelungen)
{
    if (!gelungen) {
        scheitere();
    }
}

/// Owns a file handle.
class Griff {
public:
    Griff(const fs::path& pfad, DWORD zugriff, DWORD anlegen)
        : m_griff(::CreateFileW(pfad.c_str(), zugriff, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, anlegen,
                                FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        prüfe(m_griff != INVALID_HANDLE_VALUE);
    }
    Griff(const Griff&) = delete;
    Griff& operator=(const Griff&) = delete;
    ~Griff()
    {
        if (m_griff != INVALID_HANDLE_VALUE) {
            ::CloseHandle(m_griff);
        }
    }
    HANDLE griff() const { return m_griff; }
    void schließe() { prüfe(::CloseHandle(std::exchange(m_griff, INVALID_HANDLE_VALUE)) != 0); }
    std::uint64_t länge() const
    {
        LARGE_INTEGER länge = {};
        prüfe(::GetFileSizeEx(m_griff, &länge) != 0);
        return static_cast<std::uint64_t>(länge.QuadPart);
    }

private:
    HANDLE m_griff;
};

std::string liesBisEnde(const fs::path& pfad, std::uint64_t ab)
{
    const Griff griff(pfad, GENERIC_READ, OPEN_EXISTING);
    const auto länge = griff.länge();
    LARGE_INTEGER stelle = {};
    stelle.QuadPart = static_cast<LONGLONG>(ab);
    prüfe(::SetFilePointerEx(griff.griff(), stelle, nullptr, FILE_BEGIN) != 0);
    std::string text(static_cast<std::size_t>(länge - std::min(länge, ab)), '\0');
    std::size_t ort = 0;
    while (ort < text.size()) {
        DWORD gelesen = 0;
        const auto menge = static_cast<DWORD>(std::min<std::size_t>(text.size() - ort, std::size_t{1} << 24U));
        prüfe(::ReadFile(griff.griff(), text.data() + ort, menge, &gelesen, nullptr) != 0);
        if (gelesen == 0) {
            break;
        }
        ort += gelesen;
    }
    text.resize(ort);
    return text;
}

class WindowsDatei : public OffeneDatei {
public:
    WindowsDatei(const fs::path& pfad, Öffnung wie)
        : m_griff(pfad, GENERIC_WRITE, wie == Öffnung::Leeren ? CREATE_ALWAYS : CREATE_NEW)
    {}
    std::size_t schreibe(std::string_view bytes) override
    {
        DWORD geschrieben = 0;
        const auto menge = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), std::size_t{1} << 24U));
        prüfe(::WriteFile(m_griff.griff(), bytes.data(), menge, &geschrieben, nullptr) != 0);
        return geschrieben;
    }
    void sichereAufPlatte() override { prüfe(::FlushFileBuffers(m_griff.griff()) != 0); }
    void schließe() override { m_griff.schließe(); }

private:
    Griff m_griff;
};

/// Seconds since 1970 of a file time (tenths of a microsecond since 1601).
std::int64_t sekundenVon(const FILETIME& zeit)
{
    constexpr std::uint64_t jeSekunde = 10'000'000;
    constexpr std::int64_t bis1970 = 11'644'473'600;
    const auto zehntel = (std::uint64_t{zeit.dwHighDateTime} << 32U) | zeit.dwLowDateTime;
    return static_cast<std::int64_t>(zehntel / jeSekunde) - bis1970;
}

class WindowsZugriff : public Dateizugriff {
public:
    std::unique_ptr<Dateiinhalt> lies(const fs::path& pfad, std::uint64_t ab) override
    {
        return std::make_unique<Dateiinhalt>(liesBisEnde(pfad, ab));
    }
    std::uint64_t länge(const fs::path& pfad) override { return Griff(pfad, GENERIC_READ, OPEN_EXISTING).länge(); }
    std::unique_ptr<OffeneDatei> öffne(const fs::path& pfad, Öffnung wie) override
    {
        return std::make_unique<WindowsDatei>(pfad, wie);
    }
    void benenneUm(const fs::path& von, const fs::path& nach) override
    {
        prüfe(::MoveFileExW(von.c_str(), nach.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0);
    }
    void lösche(const fs::path& pfad) override { prüfe(::DeleteFileW(pfad.c_str()) != 0); }
    void verknüpfe(const fs::path& von, const fs::path& nach) override
    {
        prüfe(::CreateHardLinkW(nach.c_str(), von.c_str(), nullptr) != 0);
    }
    void legeOrdnerAn(const fs::path& pfad) override { prüfe(::CreateDirectoryW(pfad.c_str(), nullptr) != 0); }
    void entferneOrdner(const fs::path& pfad) override { prüfe(::RemoveDirectoryW(pfad.c_str()) != 0); }
    /// MOVEFILE_WRITE_THROUGH has done it: folders cannot be flushed on this system.
    void sichereOrdnerAufPlatte(const fs::path&) override {}
    /// Rights are inherited from the user's own folders on this system.
    void verwehreAnderen(const fs::path&) override {}
    Fund findet(const fs::path& pfad) override { return fundAn(pfad); }
    bool istVergeben(const fs::path& pfad) override { return istNameVergeben(pfad); }
    fs::path ziel(const fs::path& pfad) override { return endeDerVerweise(pfad); }
    std::string zeitVon(const fs::path& pfad) override
    {
        WIN32_FILE_ATTRIBUTE_DATA angaben = {};
        prüfe(::GetFileAttributesExW(pfad.c_str(), GetFileExInfoStandard, &angaben) != 0);
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

#include "platform/dateien/Dateien.h"

#include "platform/dateien/Systemgrund.h"

#include <algorithm>
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

/// A buffer: a mapped file could not be replaced on this system while it is read.
class GeleseneDatei : public Dateiinhalt {
public:
    explicit GeleseneDatei(const fs::path& pfad)
    {
        Griff griff(pfad, GENERIC_READ, OPEN_EXISTING);
        m_text.resize(static_cast<std::size_t>(griff.länge()));
        for (std::size_t ort = 0; ort < m_text.size();) {
            DWORD gelesen = 0;
            const auto menge = static_cast<DWORD>(std::min<std::size_t>(m_text.size() - ort, std::size_t{1} << 24U));
            prüfe(::ReadFile(griff.griff(), m_text.data() + ort, menge, &gelesen, nullptr) != 0 && gelesen > 0);
            ort += gelesen;
        }
    }
    std::string_view text() const override { return m_text; }

private:
    std::string m_text;
};

class WindowsDatei : public OffeneDatei {
public:
    WindowsDatei(const fs::path& pfad, Öffnung wie)
        : m_griff(pfad, GENERIC_WRITE, wie == Öffnung::Leeren ? CREATE_ALWAYS : OPEN_ALWAYS)
    {
        if (wie == Öffnung::Anhängen) {
            prüfe(::SetFilePointerEx(m_griff.griff(), {}, nullptr, FILE_END) != 0);
        }
    }
    std::size_t schreibe(std::string_view bytes) override
    {
        DWORD geschrieben = 0;
        const auto menge = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), std::size_t{1} << 24U));
        prüfe(::WriteFile(m_griff.griff(), bytes.data(), menge, &geschrieben, nullptr) != 0);
        return geschrieben;
    }
    std::uint64_t länge() override { return m_griff.länge(); }
    void schneideAb(std::uint64_t länge) override
    {
        LARGE_INTEGER ort = {};
        ort.QuadPart = static_cast<LONGLONG>(länge);
        prüfe(::SetFilePointerEx(m_griff.griff(), ort, nullptr, FILE_BEGIN) != 0 &&
              ::SetEndOfFile(m_griff.griff()) != 0);
    }
    void sichereAufPlatte() override { prüfe(::FlushFileBuffers(m_griff.griff()) != 0); }
    void schließe() override { m_griff.schließe(); }

private:
    Griff m_griff;
};

class WindowsZugriff : public Dateizugriff {
public:
    std::unique_ptr<Dateiinhalt> lies(const fs::path& pfad) override { return std::make_unique<GeleseneDatei>(pfad); }
    std::unique_ptr<OffeneDatei> öffne(const fs::path& pfad, Öffnung wie) override
    {
        return std::make_unique<WindowsDatei>(pfad, wie);
    }
    void benenneUm(const fs::path& von, const fs::path& nach) override
    {
        prüfe(::MoveFileExW(von.c_str(), nach.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0);
    }
    void lösche(const fs::path& pfad) override { prüfe(::DeleteFileW(pfad.c_str()) != 0); }
    void legeOrdnerAn(const fs::path& pfad) override { prüfe(::CreateDirectoryW(pfad.c_str(), nullptr) != 0); }
    void entferneOrdner(const fs::path& pfad) override { prüfe(::RemoveDirectoryW(pfad.c_str()) != 0); }
    /// MOVEFILE_WRITE_THROUGH has done it: folders cannot be flushed on this system.
    void sichereOrdnerAufPlatte(const fs::path&) override {}
};

} // namespace

std::unique_ptr<Dateizugriff> erzeugeDateizugriff()
{
    return std::make_unique<WindowsZugriff>();
}

#include "platform/calc/Zwischenablage.h"

#include "platform/calc/Dateiwache.h"
#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <array>
#include <string_view>

#include <windows.h>

#include <shellapi.h>
#include <shlwapi.h>

// A file that a program has open can't be removed on Windows; a guard in this process tries until it can (Dateiwache),
// and what is left goes at the next start.

namespace fs = std::filesystem;

namespace {

constexpr std::string_view vorsilbe = "tolvek7-mappe-";

[[noreturn]] void scheitere(std::string_view was, const fs::path& pfad)
{
    throw Laufzeitfehler(verbinde(was, ": "_t, pfadtext(pfad), " (Fehler "_t, alsText(GetLastError()), ')'));
}

/// The program that has said it does this with workbooks.
std::optional<fs::path> programmFür(const wchar_t* wunsch)
{
    std::array<wchar_t, MAX_PATH> programm{};
    DWORD länge = MAX_PATH;
    if (AssocQueryStringW(ASSOCF_INIT_IGNOREUNKNOWN, ASSOCSTR_EXECUTABLE, L".xlsx", wunsch, programm.data(), &länge) !=
        S_OK) {
        return std::nullopt;
    }
    return fs::path(programm.data());
}

std::wstring inAnführung(const std::wstring& text)
{
    return L"\"" + text + L"\"";
}

bool starte(const fs::path& programm, const std::vector<std::string>& argumente, const fs::path& datei)
{
    std::wstring zeile = inAnführung(programm.wstring());
    for (const std::string& argument : argumente) {
        zeile += L" " + inAnführung(fs::path(argument).wstring());
    }
    zeile += L" " + inAnführung(datei.wstring());
    STARTUPINFOW anfang{};
    anfang.cb = sizeof anfang;
    PROCESS_INFORMATION prozess{};
    if (CreateProcessW(programm.c_str(), zeile.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr, nullptr,
                       &anfang, &prozess) == 0) {
        return false;
    }
    CloseHandle(prozess.hThread);
    CloseHandle(prozess.hProcess);
    return true;
}

} // namespace

Zwischenablage::Zwischenablage(const std::string& dateiname) : m_ordner(vorsilbe), m_datei(m_ordner.pfad() / dateiname)
{}

bool Zwischenablage::übergib(const fs::path& programm, const std::vector<std::string>& argumente)
{
    const bool gestartet = starte(programm, argumente, m_datei);
    if (gestartet) {
        m_ordner.behalte();
        bewacheBisGeschlossen(m_datei, m_ordner.schloss());
    }
    return gestartet;
}

/// Programs that know the wish "new" make a new, unsaved document of the file; the others get it write-protected, so
/// that nobody's work is saved in a place that is cleared away.
bool Zwischenablage::überlasse(const fs::path& /*programm*/)
{
    const bool alsNeues = programmFür(L"new").has_value();
    SetFileAttributesW(m_datei.c_str(), alsNeues ? FILE_ATTRIBUTE_NORMAL : FILE_ATTRIBUTE_READONLY);
    constexpr INT_PTR letzterFehler = 32;
    const auto ergebnis =
        ShellExecuteW(nullptr, alsNeues ? L"new" : L"open", m_datei.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    const bool gestartet = reinterpret_cast<INT_PTR>(ergebnis) > letzterFehler;
    if (gestartet) {
        m_ordner.behalte();
        bewacheBisGeschlossen(m_datei, m_ordner.schloss());
    } else {
        SetFileAttributesW(m_datei.c_str(), FILE_ATTRIBUTE_NORMAL); // so that it can be removed
    }
    return gestartet;
}

void Zwischenablage::räumeAuf()
{
    Wegwerfordner::räumeAuf(vorsilbe);
}

/// Here it is the program that is registered for workbooks, when it is the one that is asked for; and where none is
/// registered for them, one that has told the system where it lies. Who has chosen another program for workbooks gets
/// that.
std::optional<fs::path> findeProgramm(const std::string& name)
{
    const fs::path datei = name + ".exe";
    if (const auto gewähltes = findeProgrammFürXlsx()) {
        const auto daneben = gewähltes->parent_path() / datei;
        return GetFileAttributesW(daneben.c_str()) != INVALID_FILE_ATTRIBUTES ? std::optional(daneben) : std::nullopt;
    }
    const auto schlüssel = LR"(SOFTWARE\Microsoft\Windows\CurrentVersion\App Paths\)" + datei.wstring();
    for (HKEY wurzel : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        std::array<wchar_t, MAX_PATH> pfad{};
        DWORD länge = sizeof pfad;
        if (RegGetValueW(wurzel, schlüssel.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, pfad.data(), &länge) ==
            ERROR_SUCCESS) {
            return fs::path(pfad.data());
        }
    }
    return std::nullopt;
}

/// Any program counts that is registered; the system's question which one to take is none.
std::optional<fs::path> findeProgrammFürXlsx()
{
    return programmFür(L"open");
}

#include "platform/calc/Zwischenablage.h"

#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <array>
#include <string_view>

#include <windows.h>

#include <shellapi.h>
#include <shlwapi.h>

// A file that a program has open can't be removed on Windows; so no guard is needed here: what is left goes at
// the next start.

namespace fs = std::filesystem;

namespace {

constexpr std::string_view vorsilbe = "tolvek7-mappe-";

[[noreturn]] void scheitere(std::string_view was, const fs::path& pfad)
{
    throw Laufzeitfehler(verbinde(was, ": "_t, pfadtext(pfad), " (Fehler "_t, alsText(GetLastError()), ')'));
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
    }
    return gestartet;
}

bool Zwischenablage::überlasse(const fs::path& /*programm*/)
{
    SetFileAttributesW(m_datei.c_str(), FILE_ATTRIBUTE_READONLY);
    constexpr INT_PTR letzterFehler = 32;
    const auto ergebnis = ShellExecuteW(nullptr, L"open", m_datei.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    const bool gestartet = reinterpret_cast<INT_PTR>(ergebnis) > letzterFehler;
    if (gestartet) {
        m_ordner.behalte();
    } else {
        SetFileAttributesW(m_datei.c_str(), FILE_ATTRIBUTE_NORMAL); // so that it can be removed
    }
    return gestartet;
}

void Zwischenablage::räumeAuf()
{
    Wegwerfordner::räumeAuf(vorsilbe);
}

std::optional<fs::path> findeProgramm(const std::string& name)
{
    std::array<wchar_t, MAX_PATH> pfad{};
    const std::wstring gesucht = fs::path(name + ".exe").wstring();
    const DWORD länge = SearchPathW(nullptr, gesucht.c_str(), nullptr, MAX_PATH, pfad.data(), nullptr);
    if (länge == 0 || länge >= MAX_PATH) {
        return std::nullopt;
    }
    return fs::path(pfad.data());
}

/// Any program counts that is registered; the system's question which one to take is none.
std::optional<fs::path> findeProgrammFürXlsx()
{
    std::array<wchar_t, MAX_PATH> programm{};
    DWORD länge = MAX_PATH;
    if (AssocQueryStringW(ASSOCF_INIT_IGNOREUNKNOWN, ASSOCSTR_EXECUTABLE, L".xlsx", L"open", programm.data(), &länge) !=
        S_OK) {
        return std::nullopt;
    }
    return fs::path(programm.data());
}

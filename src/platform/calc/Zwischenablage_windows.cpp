#include "platform/calc/Zwischenablage.h"

#include "platform/dateien/Windowssystem.h"

#include <array>
#include <chrono>

#include <windows.h>

#include <shellapi.h>
#include <shlwapi.h>

// A file that a program has open can't be removed on Windows. A timer of the calling thread looks now and then whether
// somebody has, so that thread has to take its messages, as every one with windows does; what is still open at the end
// of the program goes at the next start.

namespace fs = std::filesystem;

namespace {

constexpr UINT blickMs = 500;
/// So long nobody has had the file open any more when it counts as read.
constexpr std::chrono::seconds ruhe{30};
/// A file that nobody has opened by then is not wanted any more.
constexpr std::chrono::minutes frist{10};

using Uhr = std::chrono::steady_clock;

/// Being asked is over in a moment, so that the file is hardly ever in the way of the one who wants to open it.
bool istOffen(const fs::path& datei)
{
    return !öffneName(systempfad(datei), {.zugriff = GENERIC_READ, .teilen = 0}).istOffen() &&
           GetLastError() == ERROR_SHARING_VIOLATION;
}

/// One file in its folder, which goes with this.
struct Wache {
    std::unique_ptr<Wegwerfordner> ordner;
    fs::path datei;
    Uhr::time_point anfang = Uhr::now();
    Uhr::time_point zuletztOffen{};
    bool gesehen = false;

    /// Whether the file is not needed any more.
    bool istFertig()
    {
        const auto jetzt = Uhr::now();
        if (istOffen(datei)) {
            gesehen = true;
            zuletztOffen = jetzt;
        }
        return gesehen ? jetzt - zuletztOffen >= ruhe : jetzt - anfang >= frist;
    }
};

/// All files that are watched.
class Wachen {
public:
    static Wachen& alle()
    {
        static Wachen wachen;
        return wachen;
    }
    Wachen(const Wachen&) = delete;
    Wachen& operator=(const Wachen&) = delete;
    ~Wachen()
    {
        for (const Wache& wache : m_wachen) {
            if (!wache.gesehen || istOffen(wache.datei)) {
                wache.ordner->behalte();
            }
        }
    }

    void nimm(Wache wache)
    {
        m_wachen.push_back(std::move(wache));
        if (m_uhr == 0) {
            m_uhr = SetTimer(nullptr, 0, blickMs, [](HWND, UINT, UINT_PTR, DWORD) { alle().schau(); });
        }
    }

private:
    Wachen() = default;

    void schau()
    {
        std::erase_if(m_wachen, [](Wache& wache) { return wache.istFertig(); });
        if (m_wachen.empty()) {
            KillTimer(nullptr, m_uhr);
            m_uhr = 0;
        }
    }

    std::vector<Wache> m_wachen;
    UINT_PTR m_uhr = 0;
};

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

bool Zwischenablage::übergib(const fs::path& programm, const std::vector<std::string>& argumente)
{
    const bool gestartet = starte(programm, argumente, m_datei);
    if (gestartet) {
        Wachen::alle().nimm({std::move(m_ordner), m_datei});
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
        Wachen::alle().nimm({std::move(m_ordner), m_datei});
    }
    return gestartet;
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

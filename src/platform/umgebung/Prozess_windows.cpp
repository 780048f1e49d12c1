#include "platform/umgebung/Prozess.h"

#include <string>
#include <system_error>

#include <windows.h>

#include <knownfolders.h>
#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t längsterPfad = 32'768;

fs::path programmdatei()
{
    std::wstring pfad(längsterPfad, L'\0');
    pfad.resize(GetModuleFileNameW(nullptr, pfad.data(), static_cast<DWORD>(pfad.size())));
    return pfad;
}

fs::path dokumente()
{
    PWSTR pfad = nullptr;
    const bool gefunden = SHGetKnownFolderPath(FOLDERID_Documents, KF_FLAG_DEFAULT, nullptr, &pfad) == S_OK;
    fs::path ergebnis = gefunden ? fs::path(pfad) : fs::path{};
    CoTaskMemFree(pfad);
    return ergebnis;
}

/// The rights of a folder say little on Windows (network drives, inherited denials); so it is tried, under a name that
/// no other start tries at the same time.
bool nimmtDateien(const fs::path& ordner)
{
    const auto probe = ordner / (L"Tolvek7." + std::to_wstring(GetCurrentProcessId()) + L".versuch");
    HANDLE griff = CreateFileW(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                               FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return griff != INVALID_HANDLE_VALUE && CloseHandle(griff) != 0;
}

/// A double click in an opened archive starts a copy in the temporary folder, `…/Temp1_Name.zip/…`: whatever is kept
/// beside it goes with it.
bool istAusOffenemArchiv(const fs::path& ordner)
{
    std::wstring ablage(längsterPfad, L'\0');
    ablage.resize(GetTempPathW(static_cast<DWORD>(ablage.size()), ablage.data()));
    const auto ort = ordner.wstring();
    return ort.size() > ablage.size() && ort.find(L".zip", ablage.size()) != std::wstring::npos &&
           CompareStringOrdinal(ort.data(), static_cast<int>(ablage.size()), ablage.data(),
                                static_cast<int>(ablage.size()), TRUE) == CSTR_EQUAL;
}

std::wstring alsWeit(std::string_view text)
{
    const auto anzahl = static_cast<int>(text.size());
    std::wstring weit(text.size(), L'\0');
    weit.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, text.data(), anzahl, weit.data(), static_cast<int>(weit.size()))));
    return weit;
}

/// A file or another program that the output goes to.
bool schreibe(HANDLE griff, std::string_view text)
{
    if (griff == nullptr || griff == INVALID_HANDLE_VALUE || GetFileType(griff) == FILE_TYPE_UNKNOWN) {
        return false;
    }
    DWORD geschrieben = 0;
    return WriteFile(griff, text.data(), static_cast<DWORD>(text.size()), &geschrieben, nullptr) != 0;
}

/// The terminal that the program was called from.
bool schreibeAufKonsole(std::string_view text)
{
    if (AttachConsole(ATTACH_PARENT_PROCESS) == 0) {
        return false;
    }
    HANDLE konsole =
        CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (konsole == INVALID_HANDLE_VALUE) {
        return false;
    }
    const auto weit = L"\n" + alsWeit(text); // behind the prompt, which has not waited
    DWORD geschrieben = 0;
    const bool gelungen =
        WriteConsoleW(konsole, weit.data(), static_cast<DWORD>(weit.size()), &geschrieben, nullptr) != 0;
    CloseHandle(konsole);
    return gelungen;
}

void sage(DWORD ausgang, std::string_view text, UINT symbol)
{
    if (!schreibe(GetStdHandle(ausgang), text) && !schreibeAufKonsole(text)) {
        MessageBoxW(nullptr, alsWeit(text).c_str(), L"Tolvek7", MB_OK | symbol);
    }
}

} // namespace

Systemorte frageSystem()
{
    std::error_code egal;
    const fs::path programm = programmdatei().parent_path();
    return {.programm = programm,
            .programmBeschreibbar = !istAusOffenemArchiv(programm) && nimmtDateien(programm),
            .person = dokumente(),
            .arbeitsordner = fs::current_path(egal)};
}

std::vector<fs::path> argumente(int /*anzahl*/, char** /*werte*/)
{
    // the narrow ones have lost what the code page of the system lacks
    std::vector<fs::path> ergebnis;
    int anzahl = 0;
    wchar_t** werte = CommandLineToArgvW(GetCommandLineW(), &anzahl);
    for (int i = 1; i < anzahl; ++i) {
        ergebnis.emplace_back(werte[i]);
    }
    LocalFree(werte);
    return ergebnis;
}

void sageDemAufrufer(std::string_view text)
{
    sage(STD_OUTPUT_HANDLE, text, MB_ICONINFORMATION);
}

void meldeDemAufrufer(std::string_view text)
{
    sage(STD_ERROR_HANDLE, text, MB_ICONERROR);
}

void verhindereSpeicherabbilder()
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
}

#include "platform/umgebung/Systemorte.h"

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
           CompareStringOrdinal(ort.data(), static_cast<int>(ablage.size()), ablage.data(), static_cast<int>(ablage.size()),
                                TRUE) == CSTR_EQUAL;
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

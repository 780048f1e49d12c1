#include "platform/umgebung/Aufrufer.h"

#include <string>

#include <windows.h>

namespace {

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

void sageDemAufrufer(std::string_view text)
{
    sage(STD_OUTPUT_HANDLE, text, MB_ICONINFORMATION);
}

void meldeDemAufrufer(std::string_view text)
{
    sage(STD_ERROR_HANDLE, text, MB_ICONERROR);
}

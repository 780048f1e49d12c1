// Stands for a spreadsheet program: tells in a file beside itself what it was called with, and keeps the workbook open
// for a moment.
#include "platform/umgebung/Systemorte.h"

#include <fstream>

#include <windows.h>

namespace {

constexpr DWORD offenMs = 3000;

} // namespace

int main(int anzahl, char** werte)
{
    const auto worte = argumente(anzahl, werte);
    if (worte.empty()) {
        return 2;
    }
    HANDLE griff = ::CreateFileW(worte.back().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                 FILE_ATTRIBUTE_NORMAL, nullptr);
    if (griff == INVALID_HANDLE_VALUE) {
        return 1;
    }
    const auto mitschrift = frageSystem().programm / "argumente";
    {
        std::ofstream strom(mitschrift.wstring() + L".neu", std::ios::binary);
        for (const auto& wort : worte) {
            strom << wort.string() << '\n';
        }
    }
    ::MoveFileW((mitschrift.wstring() + L".neu").c_str(), mitschrift.c_str());
    ::Sleep(offenMs);
    ::CloseHandle(griff);
    return 0;
}

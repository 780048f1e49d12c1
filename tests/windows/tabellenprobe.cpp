// Stands for a spreadsheet program: tells in a file beside itself what it was called with, and keeps the workbook open
// for a moment.
#include "platform/umgebung/Prozess.h"

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
    const auto ordner = frageSystem().programm;
    {
        std::ofstream strom(ordner / "argumente.neu", std::ios::binary);
        for (const auto& wort : worte) {
            strom << wort.string() << '\n';
        }
    }
    ::MoveFileW((ordner / "argumente.neu").c_str(), (ordner / "argumente").c_str());
    ::Sleep(offenMs);
    ::CloseHandle(griff);
    return 0;
}

#include "windows/Windowsprozess.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include <windows.h>

namespace {

constexpr DWORD fristMs = 60'000;

HANDLE öffneAusgabe(const std::filesystem::path& datei)
{
    SECURITY_ATTRIBUTES vererbt{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE griff = ::CreateFileW(datei.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, &vererbt,
                                 CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (griff == INVALID_HANDLE_VALUE) {
        throw std::runtime_error("cannot write the output of a process");
    }
    return griff;
}

} // namespace

Windowsprozess::Windowsprozess(const std::filesystem::path& ordner, const std::string& handlung, int stelle,
                               const std::filesystem::path& treiber)
{
    static int nummer = 0;
    const auto eigener = std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(++nummer);
    m_ausgabe = std::filesystem::temp_directory_path() / (L"tolvek7-ausgabe-" + eigener);
    HANDLE ausgabe = öffneAusgabe(m_ausgabe);
    auto zeile =
        L"\"" + treiber.wstring() + L"\" \"" + ordner.wstring() + L"\" " + std::filesystem::path(handlung).wstring();
    if (stelle > 0) {
        zeile += L" " + std::to_wstring(stelle);
    }
    STARTUPINFOW anfang{};
    anfang.cb = sizeof anfang;
    anfang.dwFlags = STARTF_USESTDHANDLES;
    anfang.hStdOutput = ausgabe;
    anfang.hStdError = ausgabe;
    PROCESS_INFORMATION prozess{};
    const bool gestartet =
        ::CreateProcessW(nullptr, zeile.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &anfang, &prozess) != 0;
    ::CloseHandle(ausgabe);
    if (!gestartet) {
        throw std::runtime_error("cannot start " + treiber.string());
    }
    ::CloseHandle(prozess.hThread);
    m_prozess = prozess.hProcess;
}

Windowsprozess::~Windowsprozess()
{
    töte();
    ::CloseHandle(m_prozess);
    std::error_code egal;
    std::filesystem::remove(m_ausgabe, egal);
}

int Windowsprozess::warte()
{
    if (::WaitForSingleObject(m_prozess, fristMs) != WAIT_OBJECT_0) {
        töte();
        return -1;
    }
    DWORD status = 0;
    return ::GetExitCodeProcess(m_prozess, &status) != 0 ? static_cast<int>(status) : -1;
}

bool Windowsprozess::warteAuf(const std::string& wort) const
{
    const auto anfang = ::GetTickCount64();
    while (ausgabe().find(wort) == std::string::npos) {
        if (::GetTickCount64() - anfang > fristMs || ::WaitForSingleObject(m_prozess, 0) == WAIT_OBJECT_0) {
            return ausgabe().find(wort) != std::string::npos;
        }
        ::Sleep(20);
    }
    return true;
}

void Windowsprozess::töte()
{
    ::TerminateProcess(m_prozess, 9);
    ::WaitForSingleObject(m_prozess, fristMs);
}

std::string Windowsprozess::ausgabe() const
{
    std::ifstream strom(m_ausgabe, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), {}};
}

#include "platform/calc/Nebenlauf.h"

#include <utility>

#include <windows.h>

// The threads of the standard library are not there with every compiler for Windows.

struct Nebenlauf::Inneres {
    std::function<void()> arbeit;
    HANDLE faden = nullptr;

    static DWORD WINAPI führeAus(LPVOID inneres)
    {
        static_cast<Inneres*>(inneres)->arbeit();
        return 0;
    }
};

Nebenlauf::Nebenlauf(std::function<void()> arbeit) : m_inneres(new Inneres{std::move(arbeit)})
{
    m_inneres->faden = CreateThread(nullptr, 0, Inneres::führeAus, m_inneres.get(), 0, nullptr);
    if (m_inneres->faden == nullptr) {
        m_inneres->arbeit(); // then the window waits
    }
}

Nebenlauf::~Nebenlauf()
{
    if (m_inneres->faden != nullptr) {
        WaitForSingleObject(m_inneres->faden, INFINITE);
        CloseHandle(m_inneres->faden);
    }
}

bool Nebenlauf::endetIn(int millisekunden)
{
    return m_inneres->faden == nullptr ||
           WaitForSingleObject(m_inneres->faden, static_cast<DWORD>(millisekunden)) == WAIT_OBJECT_0;
}

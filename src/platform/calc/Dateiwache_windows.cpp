#include "platform/calc/Dateiwache.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include <windows.h>

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
    HANDLE griff = CreateFileW(datei.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (griff != INVALID_HANDLE_VALUE) {
        CloseHandle(griff);
        return false;
    }
    return GetLastError() == ERROR_SHARING_VIOLATION;
}

/// One file, and the lock of its folder.
struct Wache {
    fs::path datei;
    HANDLE schloss;
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

    void entferne() const
    {
        SetFileAttributesW(datei.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(datei.c_str());
        gibFrei();
    }

    void gibFrei() const
    {
        CloseHandle(schloss);
        RemoveDirectoryW(datei.parent_path().c_str()); // only when it is empty
    }
};

/// All files that are watched, looked at by a timer of this thread's.
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
            wache.gesehen && !istOffen(wache.datei) ? wache.entferne() : wache.gibFrei();
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
        std::erase_if(m_wachen, [](Wache& wache) {
            const bool fertig = wache.istFertig();
            if (fertig) {
                wache.entferne();
            }
            return fertig;
        });
        if (m_wachen.empty()) {
            KillTimer(nullptr, m_uhr);
            m_uhr = 0;
        }
    }

    std::vector<Wache> m_wachen;
    UINT_PTR m_uhr = 0;
};

} // namespace

void bewacheBisGeschlossen(const fs::path& datei, std::intptr_t schloss)
{
    HANDLE eigenes = nullptr;
    if (DuplicateHandle(GetCurrentProcess(), reinterpret_cast<HANDLE>(schloss), GetCurrentProcess(), &eigenes, 0, FALSE,
                        DUPLICATE_SAME_ACCESS) != 0) {
        Wachen::alle().nimm({datei, eigenes});
    }
}

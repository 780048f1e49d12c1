#include "platform/calc/Dateiwache.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include <windows.h>

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds blick{500};
/// So long nobody has had the file open any more when it counts as read.
constexpr std::chrono::seconds ruhe{30};
/// A file that nobody has opened by then is not wanted any more.
constexpr std::chrono::minutes frist{10};

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

class Dateiwache {
public:
    Dateiwache(fs::path datei, HANDLE schloss)
        : m_datei(std::move(datei)), m_schloss(schloss), m_faden([this] { wache(); })
    {}
    Dateiwache(const Dateiwache&) = delete;
    Dateiwache& operator=(const Dateiwache&) = delete;
    ~Dateiwache()
    {
        {
            const std::lock_guard sperre(m_sperre);
            m_ende = true;
        }
        m_wecker.notify_all();
        m_faden.join();
    }

private:
    using Uhr = std::chrono::steady_clock;

    /// Whether the file is not needed any more.
    bool istFertig()
    {
        const auto jetzt = Uhr::now();
        if (istOffen(m_datei)) {
            m_gesehen = true;
            m_zuletztOffen = jetzt;
        }
        return m_gesehen ? jetzt - m_zuletztOffen >= ruhe : jetzt - m_anfang >= frist;
    }

    void wache()
    {
        std::unique_lock sperre(m_sperre);
        bool fertig = false;
        while (!m_ende && !fertig) {
            m_wecker.wait_for(sperre, blick, [this] { return m_ende; });
            fertig = istFertig();
        }
        if (fertig || (m_gesehen && !istOffen(m_datei))) {
            SetFileAttributesW(m_datei.c_str(), FILE_ATTRIBUTE_NORMAL);
            DeleteFileW(m_datei.c_str());
        }
        CloseHandle(m_schloss);
        RemoveDirectoryW(m_datei.parent_path().c_str()); // only when it is empty
    }

    fs::path m_datei;
    HANDLE m_schloss;
    Uhr::time_point m_anfang = Uhr::now();
    Uhr::time_point m_zuletztOffen{};
    bool m_gesehen = false;
    bool m_ende = false;
    std::mutex m_sperre;
    std::condition_variable m_wecker;
    std::thread m_faden; // the last one: it works with all the others
};

} // namespace

void bewacheBisGeschlossen(const fs::path& datei, std::intptr_t schloss)
{
    // until the end of the program: a workbook in the spreadsheet program outlives what has handed it over
    static std::vector<std::unique_ptr<Dateiwache>> wachen;
    HANDLE eigenes = nullptr;
    if (DuplicateHandle(GetCurrentProcess(), reinterpret_cast<HANDLE>(schloss), GetCurrentProcess(), &eigenes, 0, FALSE,
                        DUPLICATE_SAME_ACCESS) != 0) {
        wachen.push_back(std::make_unique<Dateiwache>(datei, eigenes));
    }
}

#include "platform/umgebung/Prozess.h"

#include <array>
#include <cstdlib>
#include <iostream>
#include <system_error>

#include <pwd.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// From the variable, which a test or an administrator may set; else from the list of users.
fs::path heim()
{
    if (const char* ort = std::getenv("HOME"); ort != nullptr && *ort == '/') {
        return ort;
    }
    std::array<char, 4096> puffer{};
    passwd eintrag{};
    passwd* gefunden = nullptr;
    if (getpwuid_r(geteuid(), &eintrag, puffer.data(), puffer.size(), &gefunden) != 0 || gefunden == nullptr) {
        return {};
    }
    return gefunden->pw_dir;
}

} // namespace

Systemorte frageSystem()
{
    std::error_code egal;
    const fs::path programm = fs::read_symlink("/proc/self/exe", egal).parent_path();
    return {.programm = programm,
            .programmBeschreibbar = !programm.empty() && access(programm.c_str(), W_OK | X_OK) == 0,
            .person = heim(),
            .arbeitsordner = fs::current_path(egal)};
}

std::vector<fs::path> argumente(int anzahl, char** werte)
{
    return anzahl < 1 ? std::vector<fs::path>{} : std::vector<fs::path>(werte + 1, werte + anzahl);
}

void sageDemAufrufer(std::string_view text)
{
    std::cout << text << std::flush;
}

void meldeDemAufrufer(std::string_view text)
{
    std::cerr << text << std::flush;
}

void verhindereSpeicherabbilder()
{
    const rlimit nichts{0, 0};
    static_cast<void>(setrlimit(RLIMIT_CORE, &nichts));
    // the limit alone does not hold for a system that hands the image to a program
    static_cast<void>(prctl(PR_SET_DUMPABLE, 0));
}

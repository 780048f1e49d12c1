#include "platform/calc/Zwischenablage.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/inotify.h>
#include <sys/wait.h>
#include <unistd.h>

// Behind fork, and in the guard, only calls that are safe there: no memory is taken, nothing is unwound. Everything
// that they need is made before.

namespace fs = std::filesystem;

namespace {

constexpr auto xlsxArt = "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet";
/// So long nobody has touched the file any more when it counts as read.
constexpr int ruheMs = 30'000;
/// After this the guard removes the file in any case.
constexpr int fristMs = 600'000;
/// What a process has open besides input, output and messages of errors.
constexpr unsigned ersteEigene = 3;

/// How often the file is open right now, from the messages of the system.
struct Zugriffe {
    int offen = 0;
    bool gesehen = false;
    bool entfernt = false;

    void zähle(std::uint32_t art)
    {
        gesehen = gesehen || (art & IN_OPEN) != 0;
        entfernt = entfernt || (art & IN_IGNORED) != 0;
        offen += (art & IN_OPEN) != 0 ? 1 : 0;
        offen -= (art & IN_CLOSE) != 0 ? 1 : 0;
    }
};

void liesMeldungen(int melder, Zugriffe& zugriffe)
{
    alignas(inotify_event) std::array<char, 4096> puffer;
    const ssize_t länge = read(melder, puffer.data(), puffer.size());
    for (ssize_t ort = 0; ort < länge;) {
        inotify_event meldung{};
        std::memcpy(&meldung, puffer.data() + ort, sizeof meldung);
        zugriffe.zähle(meldung.mask);
        ort += static_cast<ssize_t>(sizeof meldung + meldung.len);
    }
}

/// What the guard process needs.
struct Wache {
    const char* datei;
    const char* ordner;
    int schloss;
    int melder;
};

/// The guard: waits until the file has been read, removes it, and ends. Of all that the program has open it keeps the
/// lock of the folder and the messages alone, in place of an input and an output that it does not have.
[[noreturn]] void bewache(const Wache& wache)
{
    dup2(wache.schloss, STDIN_FILENO);
    dup2(wache.melder, STDOUT_FILENO);
    close_range(ersteEigene, ~0U, 0);
    Zugriffe zugriffe;
    pollfd warten{STDOUT_FILENO, POLLIN, 0};
    while (!zugriffe.entfernt) {
        const bool gelesen = zugriffe.gesehen && zugriffe.offen <= 0;
        if (poll(&warten, 1, gelesen ? ruheMs : fristMs) <= 0) {
            break;
        }
        liesMeldungen(STDOUT_FILENO, zugriffe);
    }
    unlink(wache.datei);
    rmdir(wache.ordner);
    _exit(0);
}

/// A process that goes on by itself must not hold the terminal or the pipe of the one that started it.
void löseVonEinUndAusgabe()
{
    const int nichts = open("/dev/null", O_RDWR);
    dup2(nichts, STDIN_FILENO);
    dup2(nichts, STDOUT_FILENO);
    dup2(nichts, STDERR_FILENO);
}

/// Starts the program as a grandchild, which nobody has to wait for, and with `wache` a guard beside it. False when the
/// program can't be started.
bool starte(const fs::path& programm, const std::vector<std::string>& argumente, const Wache* wache)
{
    std::vector<char*> zeiger{const_cast<char*>(programm.c_str())};
    for (const std::string& argument : argumente) {
        zeiger.push_back(const_cast<char*>(argument.c_str()));
    }
    zeiger.push_back(nullptr);
    const pid_t kind = fork();
    if (kind == 0) {
        setsid();
        löseVonEinUndAusgabe();
        close_range(ersteEigene, ~0U, CLOSE_RANGE_CLOEXEC);
        pid_t enkel = 0;
        const int fehler = posix_spawn(&enkel, programm.c_str(), nullptr, nullptr, zeiger.data(), environ);
        if (fehler == 0 && wache != nullptr && fork() == 0) {
            bewache(*wache);
        }
        _exit(fehler);
    }
    int ende = 0;
    while (kind > 0 && waitpid(kind, &ende, 0) < 0 && errno == EINTR) {
    }
    return kind > 0 && ende == 0;
}

} // namespace

bool Zwischenablage::übergib(const fs::path& programm, const std::vector<std::string>& argumente)
{
    const int melder = inotify_init1(IN_CLOEXEC);
    inotify_add_watch(melder, m_datei.c_str(), IN_OPEN | IN_CLOSE);
    const Wache wache{m_datei.c_str(), m_ordner->pfad().c_str(), static_cast<int>(m_ordner->schloss()), melder};
    std::vector<std::string> ganze = argumente;
    ganze.push_back(m_datei.string());
    const bool gestartet = starte(programm, ganze, &wache);
    close(melder);
    if (gestartet) {
        m_ordner->behalte();
    }
    return gestartet;
}

bool Zwischenablage::überlasse(const fs::path& programm)
{
    fs::permissions(m_datei, fs::perms::owner_read);
    const bool gestartet = starte(programm, {m_datei.string()}, nullptr);
    if (gestartet) {
        m_ordner->behalte();
    }
    return gestartet;
}

std::optional<fs::path> findeProgramm(const std::string& name)
{
    const char* pfade = std::getenv("PATH");
    std::istringstream ordner(pfade == nullptr ? "" : pfade);
    for (std::string einer; std::getline(ordner, einer, ':');) {
        const fs::path programm = fs::path(einer) / name;
        std::error_code egal;
        if (programm.is_absolute() && fs::is_regular_file(programm, egal) && access(programm.c_str(), X_OK) == 0) {
            return programm;
        }
    }
    return std::nullopt;
}

namespace {

/// Whether the desktop has a program for .xlsx files.
bool kenntProgrammFürXlsx()
{
    const auto frage = findeProgramm("xdg-mime");
    FILE* antwort = frage ? popen(("'" + frage->string() + "' query default " + xlsxArt).c_str(), "r") : nullptr;
    if (antwort == nullptr) {
        return false;
    }
    const int erstes = std::fgetc(antwort);
    pclose(antwort);
    return erstes != EOF && erstes != '\n';
}

} // namespace

std::optional<fs::path> findeProgrammFürXlsx()
{
    const auto öffner = findeProgramm("xdg-open");
    return öffner && kenntProgrammFürXlsx() ? öffner : std::nullopt;
}

#include "platform/calc/Zwischenablage.h"

#include <array>
#include <cstdio>
#include <cstdlib>
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
    const int melder = dup2(wache.melder, STDOUT_FILENO); // where there is none, the time alone ends the waiting
    close_range(ersteEigene, ~0U, 0);
    int offen = 0; // so many have the file open
    bool gesehen = false;
    pollfd warten{melder, POLLIN, 0};
    while (poll(&warten, 1, gesehen && offen <= 0 ? ruheMs : fristMs) > 0) {
        inotify_event meldung{}; // about one file, so without a name behind it
        if (read(melder, &meldung, sizeof meldung) < 0 || (meldung.mask & IN_IGNORED) != 0) {
            break;
        }
        gesehen = gesehen || (meldung.mask & IN_OPEN) != 0;
        offen += (meldung.mask & IN_OPEN) != 0 ? 1 : 0;
        offen -= (meldung.mask & IN_CLOSE) != 0 ? 1 : 0;
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

/// Starts the program from a grandchild, which nobody has to wait for and which with `wache` becomes the guard. False
/// when the program can't be started.
bool starte(const fs::path& programm, const std::vector<std::string>& argumente, const Wache* wache)
{
    std::vector<char*> zeiger{const_cast<char*>(programm.c_str())};
    for (const std::string& argument : argumente) {
        zeiger.push_back(const_cast<char*>(argument.c_str()));
    }
    zeiger.push_back(nullptr);
    std::array<int, 2> rohr{};
    if (pipe2(rohr.data(), O_CLOEXEC) != 0) {
        return false;
    }
    const pid_t kind = fork();
    if (kind == 0) {
        if (fork() != 0) {
            _exit(0);
        }
        setsid();
        löseVonEinUndAusgabe();
        close_range(ersteEigene, ~0U, CLOSE_RANGE_CLOEXEC);
        pid_t nummer = 0;
        const bool gestartet = posix_spawn(&nummer, programm.c_str(), nullptr, nullptr, zeiger.data(), environ) == 0;
        const bool wacht = gestartet && wache != nullptr;
        if (!wacht) { // or the folder would stay locked until this process has come to its end
            rohr[1] = dup2(rohr[1], ersteEigene);
            close_range(ersteEigene + 1, ~0U, 0);
        }
        (void)!write(rohr[1], &gestartet, sizeof gestartet);
        if (wacht) {
            bewache(*wache);
        }
        _exit(0);
    }
    close(rohr[1]);
    bool gestartet = false;
    (void)!read(rohr[0], &gestartet, sizeof gestartet); // nothing comes where nobody could be asked
    close(rohr[0]);
    if (kind > 0) {
        waitpid(kind, nullptr, 0);
    }
    return gestartet;
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

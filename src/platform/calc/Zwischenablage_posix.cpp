#include "platform/calc/Zwischenablage.h"

#include "platform/dateien/Dateien.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Between fork and exec, and in the guard, only calls that are safe there: no memory is taken, nothing is
// unwound. Everything that they need is made before.

namespace fs = std::filesystem;

namespace {

constexpr std::string_view vorsilbe = "tolvek7-mappe-";
constexpr auto xlsxArt = "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet";
/// So long nobody has touched the file any more when it counts as read.
constexpr int ruheMs = 30'000;
/// After this the guard removes the file in any case.
constexpr int fristMs = 600'000;

[[noreturn]] void scheitere(std::string_view was, const fs::path& pfad, int fehler)
{
    throw Laufzeitfehler(verbinde(was, ": "_t, pfadtext(pfad), " (Fehler "_t, alsText(fehler), ')'));
}

void schließeAlleAußer(int eine, int andere)
{
    const auto kleinere = static_cast<unsigned>(eine < andere ? eine : andere);
    const auto größere = static_cast<unsigned>(eine < andere ? andere : eine);
    constexpr unsigned erste = 3;
    if (kleinere > erste) {
        close_range(erste, kleinere - 1, 0);
    }
    if (größere > kleinere + 1) {
        close_range(kleinere + 1, größere - 1, 0);
    }
    close_range(größere + 1, ~0U, 0);
}

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

/// The guard: waits until the file has been read, removes it, and ends.
[[noreturn]] void bewache(const Wache& wache)
{
    schließeAlleAußer(wache.schloss, wache.melder);
    Zugriffe zugriffe;
    pollfd warten{wache.melder, POLLIN, 0};
    while (!zugriffe.entfernt) {
        const bool gelesen = zugriffe.gesehen && zugriffe.offen <= 0;
        if (poll(&warten, 1, gelesen ? ruheMs : fristMs) <= 0) {
            break;
        }
        liesMeldungen(wache.melder, zugriffe);
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

/// Starts the program as a grandchild, which nobody has to wait for; with `wache` its parent becomes the guard.
/// False when it can't be started.
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
        const pid_t enkel = wache != nullptr ? fork() : 0;
        if (enkel == 0) {
            close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);
            execv(programm.c_str(), zeiger.data());
        }
        if (enkel <= 0) {
            const int fehler = errno;
            (void)!write(rohr[1], &fehler, sizeof fehler);
            _exit(127);
        }
        bewache(*wache);
    }
    int fehler = kind < 0 ? errno : 0;
    close(rohr[1]);
    if (kind > 0) {
        waitpid(kind, nullptr, 0);
        (void)!read(rohr[0], &fehler, sizeof fehler);
    }
    close(rohr[0]);
    return fehler == 0;
}

} // namespace

Zwischenablage::Zwischenablage(const std::string& dateiname) : m_ordner(vorsilbe), m_datei(m_ordner.pfad() / dateiname)
{
    const int griff = open(m_datei.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (griff < 0) {
        scheitere("Die Zwischendatei kann nicht angelegt werden"_t, m_datei, errno);
    }
    close(griff);
}

bool Zwischenablage::übergib(const fs::path& programm, const std::vector<std::string>& argumente)
{
    const int melder = inotify_init1(IN_CLOEXEC);
    inotify_add_watch(melder, m_datei.c_str(), IN_OPEN | IN_CLOSE);
    const Wache wache{m_datei.c_str(), m_ordner.pfad().c_str(), static_cast<int>(m_ordner.schloss()), melder};
    std::vector<std::string> ganze = argumente;
    ganze.push_back(m_datei.string());
    const bool gestartet = starte(programm, ganze, &wache);
    close(melder);
    if (gestartet) {
        m_ordner.behalte();
    }
    return gestartet;
}

bool Zwischenablage::überlasse(const fs::path& programm)
{
    fs::permissions(m_datei, fs::perms::owner_read);
    const bool gestartet = starte(programm, {m_datei.string()}, nullptr);
    if (gestartet) {
        m_ordner.behalte();
    }
    return gestartet;
}

void Zwischenablage::räumeAuf()
{
    Wegwerfordner::räumeAuf(vorsilbe);
}

std::optional<fs::path> findeProgramm(const std::string& name)
{
    const char* pfade = std::getenv("PATH");
    std::string_view rest = pfade == nullptr ? std::string_view{} : pfade;
    while (!rest.empty()) {
        const std::size_t ende = rest.find(':');
        const fs::path programm = fs::path(rest.substr(0, ende)) / name;
        std::error_code egal;
        if (programm.is_absolute() && fs::is_regular_file(programm, egal) && access(programm.c_str(), X_OK) == 0) {
            return programm;
        }
        rest.remove_prefix(ende == std::string_view::npos ? rest.size() : ende + 1);
    }
    return std::nullopt;
}

namespace {

/// Whether the desktop has a program for .xlsx files.
bool kenntProgrammFürXlsx()
{
    const auto frage = findeProgramm("xdg-mime");
    std::array<int, 2> rohr{};
    if (!frage || pipe2(rohr.data(), O_CLOEXEC) != 0) {
        return false;
    }
    const pid_t kind = fork();
    if (kind == 0) {
        dup2(rohr[1], STDOUT_FILENO);
        execl(frage->c_str(), frage->c_str(), "query", "default", xlsxArt, nullptr);
        _exit(127);
    }
    close(rohr[1]);
    char erstes = '\n';
    const bool antwortet = kind > 0 && read(rohr[0], &erstes, 1) == 1 && erstes != '\n';
    close(rohr[0]);
    if (kind > 0) {
        waitpid(kind, nullptr, 0);
    }
    return antwortet;
}

} // namespace

std::optional<fs::path> findeProgrammFürXlsx()
{
    const auto öffner = findeProgramm("xdg-open");
    return öffner && kenntProgrammFürXlsx() ? öffner : std::nullopt;
}

// A library that is loaded before the program's own (LD_PRELOAD) and stands between it and the C library. It counts the
// calls that touch files below one folder and lets one of them go wrong, or has the kernel kill the process there: what
// a pulled plug does, tried on the real process.
//
//   AUSFALL_ORDNER  the folder; calls on other files are handed on uncounted
//   AUSFALL_PLAN    "vor:N", "mitten:N" (half of a write, then death), "nach:N", "fehler:N:ERRNO", "fehlerab:N:ERRNO"
//   AUSFALL_RUFE    empty: calls that change something; "alle"; or names of calls, each between commas: ",open,read,"
//   AUSFALL_NAME    only calls on paths that hold this text
//   AUSFALL_LISTE   a file that gets a line for each counted call
//   AUSFALL_WARTET  nothing is counted before the program has called `ausfall_beginne`

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <csignal>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

enum class Art { Nichts, Vor, Mitten, Nach, Fehler, FehlerAb };
enum class Folge { Weiter, Mitten, TotDanach, Scheitern };

struct Plan {
    std::string_view ordner;
    std::string_view rufe;
    std::string_view name;
    Art art = Art::Nichts;
    long stelle = 0;
    int fehler = EIO;
    int liste = -1;
    bool wartet = false;
};

constexpr std::size_t meisteGriffe = 1024;
constexpr std::size_t längsterPfad = 512;

Plan plan;
long gezählt = 0;
std::array<std::array<char, längsterPfad>, meisteGriffe> pfadDesGriffs;

template <class F> F echte(const char* name)
{
    return reinterpret_cast<F>(dlsym(RTLD_NEXT, name));
}

std::string_view umgebungswert(const char* name)
{
    const char* wert = std::getenv(name);
    return wert == nullptr ? std::string_view() : std::string_view(wert);
}

__attribute__((constructor)) void richteEin()
{
    plan.ordner = umgebungswert("AUSFALL_ORDNER");
    plan.rufe = umgebungswert("AUSFALL_RUFE");
    plan.name = umgebungswert("AUSFALL_NAME");
    plan.wartet = !umgebungswert("AUSFALL_WARTET").empty();
    if (const auto liste = umgebungswert("AUSFALL_LISTE"); !liste.empty()) {
        static const auto öffne = echte<int (*)(const char*, int, ...)>("open");
        plan.liste = öffne(liste.data(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    }
    const auto angabe = umgebungswert("AUSFALL_PLAN");
    constexpr std::array<std::pair<std::string_view, Art>, 5> arten{{{"vor:", Art::Vor},
                                                                     {"mitten:", Art::Mitten},
                                                                     {"nach:", Art::Nach},
                                                                     {"fehler:", Art::Fehler},
                                                                     {"fehlerab:", Art::FehlerAb}}};
    for (const auto& [wort, art] : arten) {
        if (angabe.starts_with(wort)) {
            char* rest = nullptr;
            plan.art = art;
            plan.stelle = std::strtol(angabe.data() + wort.size(), &rest, 10);
            plan.fehler = *rest == ':' ? static_cast<int>(std::strtol(rest + 1, nullptr, 10)) : EIO;
        }
    }
}

[[noreturn]] void stirb()
{
    kill(getpid(), SIGKILL);
    for (;;) {
        pause();
    }
}

bool liegtImOrdner(std::string_view pfad)
{
    return !plan.ordner.empty() && pfad.starts_with(plan.ordner) &&
           (pfad.size() == plan.ordner.size() || pfad[plan.ordner.size()] == '/');
}

bool istGemeint(std::string_view ruf, bool ändert)
{
    if (plan.rufe.empty()) {
        return ändert;
    }
    if (plan.rufe == "alle") {
        return true;
    }
    for (auto ort = plan.rufe.find(ruf); ort != std::string_view::npos; ort = plan.rufe.find(ruf, ort + 1)) {
        const auto ende = ort + ruf.size();
        if (ort > 0 && plan.rufe[ort - 1] == ',' && ende < plan.rufe.size() && plan.rufe[ende] == ',') {
            return true;
        }
    }
    return false;
}

void schreibeListe(const char* ruf, const char* pfad)
{
    static const auto schreibe = echte<ssize_t (*)(int, const void*, size_t)>("write");
    if (plan.liste >= 0) {
        std::array<char, längsterPfad + 64> zeile{};
        const int länge = std::snprintf(zeile.data(), zeile.size(), "%ld %s %s\n", gezählt, ruf, pfad);
        (void)!schreibe(plan.liste, zeile.data(), static_cast<size_t>(länge));
    }
}

Folge zähle(const char* ruf, bool ändert, const char* pfad)
{
    const bool trifft = pfad != nullptr && !plan.wartet && liegtImOrdner(pfad) && istGemeint(ruf, ändert) &&
                        (plan.name.empty() || std::string_view(pfad).find(plan.name) != std::string_view::npos);
    if (!trifft) {
        return Folge::Weiter;
    }
    ++gezählt;
    schreibeListe(ruf, pfad);
    if (plan.art == Art::FehlerAb && gezählt >= plan.stelle) {
        return Folge::Scheitern;
    }
    if (gezählt != plan.stelle) {
        return Folge::Weiter;
    }
    switch (plan.art) {
    case Art::Vor:
        stirb();
    case Art::Mitten:
        return Folge::Mitten;
    case Art::Nach:
        return Folge::TotDanach;
    case Art::Fehler:
        return Folge::Scheitern;
    default:
        return Folge::Weiter;
    }
}

/// Counts the call and does it as planned. `echt` is the call itself.
template <class F> auto rufe(const char* ruf, bool ändert, const char* pfad, F echt) -> decltype(echt())
{
    const auto folge = zähle(ruf, ändert, pfad);
    if (folge == Folge::Scheitern) {
        errno = plan.fehler;
        return -1;
    }
    const auto ergebnis = echt();
    if (folge == Folge::TotDanach || folge == Folge::Mitten) {
        stirb();
    }
    return ergebnis;
}

const char* pfadVon(int griff)
{
    const bool bekannt = griff >= 0 && static_cast<std::size_t>(griff) < meisteGriffe;
    return bekannt && pfadDesGriffs[static_cast<std::size_t>(griff)][0] != '\0'
               ? pfadDesGriffs[static_cast<std::size_t>(griff)].data()
               : nullptr;
}

void merke(int griff, const char* pfad)
{
    if (griff >= 0 && static_cast<std::size_t>(griff) < meisteGriffe) {
        auto& platz = pfadDesGriffs[static_cast<std::size_t>(griff)];
        std::snprintf(platz.data(), platz.size(), "%s", pfad);
    }
}

/// The whole path of a name below an open folder.
struct Pfadbau {
    std::array<char, 2 * längsterPfad> text{};
    const char* pfad;

    Pfadbau(int ordner, const char* name) : pfad(name)
    {
        const char* oben = name[0] == '/' ? nullptr : pfadVon(ordner);
        if (oben != nullptr) {
            std::snprintf(text.data(), text.size(), "%s/%s", oben, name);
            pfad = text.data();
        }
    }
};

bool ändertBeimÖffnen(int wie)
{
    return (wie & (O_CREAT | O_TRUNC | O_WRONLY | O_RDWR)) != 0;
}

template <class F> int öffne(const char* pfad, int wie, F echt)
{
    const int griff = rufe("open", ändertBeimÖffnen(wie), pfad, echt);
    merke(griff, pfad);
    return griff;
}

mode_t rechteAus(int wie, va_list& rest)
{
    return (wie & (O_CREAT | O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(rest, unsigned)) : mode_t{0};
}

template <class Eines> const char* einesImOrdner(Eines von, Eines nach)
{
    return liegtImOrdner(von) ? von : nach;
}

} // namespace

extern "C" {

/// From here on calls are counted (AUSFALL_WARTET).
void ausfall_beginne()
{
    plan.wartet = false;
}

#define TOLVEK_OEFFNEN(name)                                                                                           \
    int name(const char* pfad, int wie, ...)                                                                           \
    {                                                                                                                  \
        va_list rest;                                                                                                  \
        va_start(rest, wie);                                                                                           \
        const auto rechte = rechteAus(wie, rest);                                                                      \
        va_end(rest);                                                                                                  \
        return öffne(pfad, wie, [&] { return echte<int (*)(const char*, int, ...)>(#name)(pfad, wie, rechte); });      \
    }

#define TOLVEK_OEFFNEN_UNTER(name)                                                                                     \
    int name(int ordner, const char* kurz, int wie, ...)                                                               \
    {                                                                                                                  \
        va_list rest;                                                                                                  \
        va_start(rest, wie);                                                                                           \
        const auto rechte = rechteAus(wie, rest);                                                                      \
        va_end(rest);                                                                                                  \
        const Pfadbau ganz(ordner, kurz);                                                                              \
        return öffne(ganz.pfad, wie,                                                                                   \
                     [&] { return echte<int (*)(int, const char*, int, ...)>(#name)(ordner, kurz, wie, rechte); });    \
    }

TOLVEK_OEFFNEN(open)
TOLVEK_OEFFNEN(open64)
TOLVEK_OEFFNEN_UNTER(openat)
TOLVEK_OEFFNEN_UNTER(openat64)

int creat(const char* pfad, mode_t rechte)
{
    return öffne(pfad, O_CREAT, [&] { return echte<int (*)(const char*, mode_t)>("creat")(pfad, rechte); });
}

int close(int griff)
{
    const char* pfad = pfadVon(griff);
    const int ergebnis = rufe("close", false, pfad, [&] { return echte<int (*)(int)>("close")(griff); });
    merke(griff, "");
    return ergebnis;
}

ssize_t read(int griff, void* ziel, size_t menge)
{
    return rufe("read", false, pfadVon(griff),
                [&] { return echte<ssize_t (*)(int, void*, size_t)>("read")(griff, ziel, menge); });
}

ssize_t write(int griff, const void* bytes, size_t menge)
{
    static const auto echt = echte<ssize_t (*)(int, const void*, size_t)>("write");
    const auto folge = zähle("write", true, pfadVon(griff));
    if (folge == Folge::Scheitern) {
        errno = plan.fehler;
        return -1;
    }
    const auto ergebnis = echt(griff, bytes, folge == Folge::Mitten ? menge / 2 : menge);
    if (folge != Folge::Weiter) {
        stirb();
    }
    return ergebnis;
}

ssize_t pwrite(int griff, const void* bytes, size_t menge, off_t ort)
{
    return rufe("pwrite", true, pfadVon(griff), [&] {
        return echte<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite")(griff, bytes, menge, ort);
    });
}

ssize_t writev(int griff, const iovec* stücke, int anzahl)
{
    return rufe("writev", true, pfadVon(griff),
                [&] { return echte<ssize_t (*)(int, const iovec*, int)>("writev")(griff, stücke, anzahl); });
}

int fsync(int griff)
{
    return rufe("fsync", true, pfadVon(griff), [&] { return echte<int (*)(int)>("fsync")(griff); });
}

int fdatasync(int griff)
{
    return rufe("fdatasync", true, pfadVon(griff), [&] { return echte<int (*)(int)>("fdatasync")(griff); });
}

int ftruncate(int griff, off_t länge)
{
    return rufe("ftruncate", true, pfadVon(griff),
                [&] { return echte<int (*)(int, off_t)>("ftruncate")(griff, länge); });
}

int truncate(const char* pfad, off_t länge)
{
    return rufe("truncate", true, pfad, [&] { return echte<int (*)(const char*, off_t)>("truncate")(pfad, länge); });
}

int rename(const char* von, const char* nach)
{
    return rufe("rename", true, einesImOrdner(von, nach),
                [&] { return echte<int (*)(const char*, const char*)>("rename")(von, nach); });
}

int renameat(int a, const char* von, int b, const char* nach)
{
    const Pfadbau ganz(a, von);
    return rufe("renameat", true, ganz.pfad,
                [&] { return echte<int (*)(int, const char*, int, const char*)>("renameat")(a, von, b, nach); });
}

int renameat2(int a, const char* von, int b, const char* nach, unsigned wie)
{
    const Pfadbau ganz(a, von);
    return rufe("renameat2", true, ganz.pfad, [&] {
        return echte<int (*)(int, const char*, int, const char*, unsigned)>("renameat2")(a, von, b, nach, wie);
    });
}

int link(const char* von, const char* nach)
{
    return rufe("link", true, einesImOrdner(von, nach),
                [&] { return echte<int (*)(const char*, const char*)>("link")(von, nach); });
}

int symlink(const char* inhalt, const char* pfad)
{
    return rufe("symlink", true, pfad,
                [&] { return echte<int (*)(const char*, const char*)>("symlink")(inhalt, pfad); });
}

int unlink(const char* pfad)
{
    return rufe("unlink", true, pfad, [&] { return echte<int (*)(const char*)>("unlink")(pfad); });
}

int unlinkat(int ordner, const char* kurz, int wie)
{
    const Pfadbau ganz(ordner, kurz);
    return rufe("unlinkat", true, ganz.pfad,
                [&] { return echte<int (*)(int, const char*, int)>("unlinkat")(ordner, kurz, wie); });
}

int mkdir(const char* pfad, mode_t rechte)
{
    return rufe("mkdir", true, pfad, [&] { return echte<int (*)(const char*, mode_t)>("mkdir")(pfad, rechte); });
}

int rmdir(const char* pfad)
{
    return rufe("rmdir", true, pfad, [&] { return echte<int (*)(const char*)>("rmdir")(pfad); });
}

int chmod(const char* pfad, mode_t rechte)
{
    return rufe("chmod", true, pfad, [&] { return echte<int (*)(const char*, mode_t)>("chmod")(pfad, rechte); });
}

int fchmod(int griff, mode_t rechte)
{
    return rufe("fchmod", true, pfadVon(griff), [&] { return echte<int (*)(int, mode_t)>("fchmod")(griff, rechte); });
}

int flock(int griff, int wie)
{
    return rufe("flock", false, pfadVon(griff), [&] { return echte<int (*)(int, int)>("flock")(griff, wie); });
}
}

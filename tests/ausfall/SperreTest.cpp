#include "ausfall/Prozess.h"
#include "ausfall/Vorlage.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

// Two processes on one folder, by every road; and what lives on behind a process that has ended.

namespace fs = std::filesystem;

namespace {

class Sperre : public testing::Test {
protected:
    void SetUp() override
    {
        legeBestandAn(ordner);
        erster = std::make_unique<Prozess>(handlung(ordner, "bleibe"));
        ASSERT_TRUE(erster->warteAuf("BLEIBT")) << erster->ausgabe();
        vorher = tabellenIn(ordner);
    }
    void erwarteAbweisung(Prozess& zweiter) const
    {
        EXPECT_TRUE(zweiter.warte());
        EXPECT_FALSE(zweiter.sagt("HAUPTMENÜ")) << zweiter.ausgabe();
        EXPECT_TRUE(zweiter.sagt("MELDUNG Es ist schon eine Instanz dieses Programms")) << zweiter.ausgabe();
        EXPECT_EQ(zweiter.status(), 0);
        EXPECT_EQ(tabellenIn(ordner), vorher);
    }
    /// With the first one gone the same road is free: it was the lock that refused.
    static void erwarteEinlaß(Prozess& dritter)
    {
        EXPECT_TRUE(dritter.warte());
        EXPECT_TRUE(dritter.sagt("HAUPTMENÜ")) << dritter.ausgabe();
    }

    Arbeitsplatz platz;
    fs::path ordner = platz.pfad() / "Programm";
    std::unique_ptr<Prozess> erster;
    Dreitafel vorher;
};

TEST_F(Sperre, DerselbePfadUndTodDesErsten)
{
    Prozess zweiter(handlung(ordner, "start"));
    erwarteAbweisung(zweiter);
    erster->töte();
    Prozess dritter(handlung(ordner, "start"));
    erwarteEinlaß(dritter);
}

TEST_F(Sperre, AndereSitzung)
{
    const auto laufzeit = platz.pfad() / "xdg";
    fs::create_directory(laufzeit);
    const Umgebungswerte andere{
        {"XDG_RUNTIME_DIR", laufzeit.string()}, {"TMPDIR", laufzeit.string()}, {"HOME", laufzeit.string()}};
    Prozess zweiter(handlung(ordner, "start"), andere);
    erwarteAbweisung(zweiter);
    erster->töte();
    Prozess dritter(handlung(ordner, "start"), andere);
    erwarteEinlaß(dritter);
}

TEST_F(Sperre, ProgrammordnerAlsVerweis)
{
    const auto verweis = platz.pfad() / "Verweis";
    fs::create_directory_symlink(ordner, verweis);
    Prozess zweiter(handlung(verweis, "start"));
    erwarteAbweisung(zweiter);
    erster->töte();
    Prozess dritter(handlung(verweis, "start"));
    erwarteEinlaß(dritter);
}

TEST_F(Sperre, DatenAlsVerweisInEinenAnderenProgrammordner)
{
    const auto anderer = platz.pfad() / "Anderer";
    fs::create_directory(anderer);
    fs::create_directory_symlink(ordner / "Daten", anderer / "Daten");
    Prozess zweiter(handlung(anderer, "start"));
    erwarteAbweisung(zweiter);
    erster->töte();
    Prozess dritter(handlung(anderer, "start"));
    erwarteEinlaß(dritter);
}

/// The folder of mounts is the process's own, so nothing of it stays.
std::vector<std::string> eingehängt(const fs::path& was, const fs::path& wo, const std::string& befehl)
{
    const auto* alles = R"(mount --bind "$1" "$2" && shift 2 && exec "$@")";
    std::vector<std::string> ganz{"unshare", "-m"};
    if (geteuid() != 0) {
        ganz.emplace_back("-r");
    }
    for (const std::string& teil :
         {std::string("sh"), std::string("-c"), std::string(alles), std::string("sh"), was.string(), wo.string()}) {
        ganz.push_back(teil);
    }
    for (const auto& teil : befehl.empty() ? handlung(wo, "start") : std::vector<std::string>{befehl}) {
        ganz.push_back(teil);
    }
    return ganz;
}

TEST_F(Sperre, EingehängterOrdner)
{
    const auto anderer = platz.pfad() / "Eingehaengt";
    fs::create_directory(anderer);
    Prozess probe(eingehängt(ordner, anderer, "true"));
    if (!probe.warte() || probe.status() != 0) {
        std::cout << "[ausfall] this system allows no bind mounts: " << probe.ausgabe() << std::endl;
        GTEST_SKIP() << "this system allows no bind mounts";
    }
    Prozess zweiter(eingehängt(ordner, anderer, {}));
    erwarteAbweisung(zweiter);
    erster->töte();
    Prozess dritter(eingehängt(ordner, anderer, {}));
    erwarteEinlaß(dritter);
}

/// Another user does not get in, whether the rights or the lock refuse.
TEST_F(Sperre, AndererBenutzer)
{
    if (geteuid() != 0) {
        std::cout << "[ausfall] another user can be tried by the superuser only" << std::endl;
        GTEST_SKIP() << "needs the superuser";
    }
    const auto kopie = platz.pfad() / "handlung";
    fs::copy_file(AUSFALL_HANDLUNG, kopie);
    fs::permissions(platz.pfad(), static_cast<fs::perms>(0755));
    fs::permissions(ordner, static_cast<fs::perms>(0777));
    const std::vector<std::string> befehl{"setpriv",      "--reuid=65534", "--regid=65534", "--clear-groups",
                                          kopie.string(), ordner.string(), "start"};
    {
        Prozess zweiter(befehl);
        EXPECT_TRUE(zweiter.warte());
        EXPECT_EQ(zweiter.status(), 1);
        EXPECT_NE(zweiter.ausgabe().find("das Recht dazu fehlt"), std::string::npos) << zweiter.ausgabe();
    }
    fs::permissions(ordner / "Daten", static_cast<fs::perms>(0777)); // a share that several people may write to
    Prozess dritter(befehl);
    erwarteAbweisung(dritter);
}

TEST_F(Sperre, KeinSpeicherabbild)
{
    std::string grenzen = liesDatei("/proc/" + std::to_string(erster->nummer()) + "/limits");
    const auto zeile = grenzen.find("Max core file size");
    ASSERT_NE(zeile, std::string::npos);
    std::istringstream worte(grenzen.substr(zeile + std::string("Max core file size").size()));
    std::string weich;
    std::string hart;
    worte >> weich >> hart;
    EXPECT_EQ(weich, "0");
    EXPECT_EQ(hart, "0");
}

TEST_F(Sperre, KeinSpeicherabbildBeimAbsturz)
{
    erster->töte();
    for (const char* wie : {"ABRT", "SEGV"}) {
        const auto* alles = R"x(cd "$1" && ulimit -c "$(ulimit -H -c)"; shift; exec "$@")x";
        const bool selbst = std::string(wie) == "ABRT";
        std::vector<std::string> befehl{"sh", "-c", alles, "sh", platz.pfad().string()};
        for (const auto& teil : handlung(ordner, selbst ? "absturz" : "bleibe")) {
            befehl.push_back(teil);
        }
        Prozess lauf(befehl);
        if (!selbst) {
            ASSERT_TRUE(lauf.warteAuf("BLEIBT")) << lauf.ausgabe();
            kill(lauf.nummer(), SIGSEGV);
        }
        ASSERT_TRUE(lauf.warte());
        EXPECT_EQ(lauf.signal(), selbst ? SIGABRT : SIGSEGV);
        EXPECT_FALSE(lauf.hatSpeicherabbild());
        for (const auto& eintrag : fs::directory_iterator(platz.pfad())) {
            EXPECT_FALSE(eintrag.path().filename().string().starts_with("core")) << eintrag.path();
        }
    }
}

#ifdef AUSFALL_CALC
/// A guard stays behind to remove a workbook that has been read. It must not hold the lock of the folder.
TEST_F(Sperre, WächterDerMappeHältDenOrdnerNicht)
{
    erster->töte();
    const auto programme = platz.pfad() / "bin";
    const auto wer = platz.pfad() / "wer";
    schreibeDatei(programme / "soffice", "#!/bin/sh\necho $PPID $$ > '" + wer.string() + ".neu'\nmv '" + wer.string() +
                                             ".neu' '" + wer.string() + "'\nexec sleep 60\n");
    fs::permissions(programme / "soffice", fs::perms::owner_all);
    Prozess lauf(handlung(ordner, "mappe"),
                 {{"PATH", programme.string() + ":" + std::getenv("PATH")}, {"TMPDIR", platz.pfad().string()}});
    ASSERT_TRUE(lauf.warte() && lauf.sagt("FERTIG")) << lauf.ausgabe();
    for (int i = 0; i < 500 && !fs::exists(wer); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    pid_t wächter = 0;
    pid_t office = 0;
    std::istringstream(liesDatei(wer)) >> wächter >> office;
    ASSERT_GT(wächter, 1);
    EXPECT_EQ(kill(wächter, 0), 0) << "the guard lives";
    for (const auto& griff : fs::directory_iterator("/proc/" + std::to_string(wächter) + "/fd")) {
        EXPECT_FALSE(fs::read_symlink(griff.path()).string().starts_with(ordner.string())) << griff.path();
    }
    Prozess wieder(handlung(ordner, "start"));
    erwarteEinlaß(wieder);
    EXPECT_EQ(kill(wächter, 0), 0) << "the guard still lives";
    kill(office, SIGKILL);
    kill(wächter, SIGKILL);
}
#endif

} // namespace

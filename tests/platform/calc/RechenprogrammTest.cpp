#include "platform/calc/Rechenprogramm.h"

#include "platform/calc/Calcversuch.h"
#include "platform/calc/Zwischenablage.h"
#include "platform/mappe/Arbeitsmappe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

/// Past the time in which the guard waits for another look at the file.
constexpr int sekundenBisEntfernt = 60;

std::size_t anzahlIn(const fs::path& ordner)
{
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(ordner), fs::directory_iterator{}));
}

mode_t rechte(const fs::path& pfad)
{
    struct stat angaben {};
    return stat(pfad.c_str(), &angaben) == 0 ? angaben.st_mode & 0777U : 0U;
}

Arbeitsmappe muster()
{
    Arbeitsmappe mappe;
    mappe.blatt(1).setze(1, 1, "Inhalt");
    return mappe;
}

TEST(Zwischenablage, gehörtNurDemBenutzer)
{
    const Calcversuch versuch;
    const Zwischenablage ablage("Mappe.xlsx");
    EXPECT_EQ(rechte(ablage.datei()), 0600U);
    EXPECT_EQ(rechte(ablage.datei().parent_path()), 0700U);
}

TEST(Zwischenablage, räumtSichSelbstWeg)
{
    const Calcversuch versuch;
    {
        const Zwischenablage ablage("Mappe.xlsx");
        EXPECT_EQ(anzahlIn(versuch.temp()), 1U);
    }
    EXPECT_EQ(anzahlIn(versuch.temp()), 0U);
}

TEST(Zwischenablage, derNächsteStartRäumtNurHerrenloseWeg)
{
    const Calcversuch versuch;
    const Zwischenablage gebraucht("Mappe.xlsx");
    fs::create_directory(versuch.temp() / "tolvek7-mappe-abc123");
    std::ofstream(versuch.temp() / "tolvek7-mappe-abc123" / "Mappe.xlsx") << "alt";
    fs::create_directory(versuch.temp() / "anderes");
    const Rechenprogramm programm;
    EXPECT_FALSE(fs::exists(versuch.temp() / "tolvek7-mappe-abc123"));
    EXPECT_TRUE(fs::exists(versuch.temp() / "anderes"));
    EXPECT_TRUE(fs::exists(gebraucht.datei()));
}

TEST(Rechenprogramm, ohneProgrammIstKeinesDa)
{
    const Calcversuch versuch;
    const Umgebungsvariable pfad("PATH", (versuch.ordner / "bin").string());
    Rechenprogramm programm;
    EXPECT_FALSE(programm.istDa());
    Arbeitsmappe mappe = muster();
    EXPECT_FALSE(programm.öffne(mappe));
    EXPECT_EQ(anzahlIn(versuch.temp()), 0U);
}

TEST(Rechenprogramm, libreOfficeBekommtEinNeuesDokumentDasDanachVerschwindet)
{
    const Calcversuch versuch;
    versuch.legeProgrammAn("soffice", "#!/bin/sh\n/bin/cp \"$3\" '" + versuch.ordner.string() +
                                          "/gelesen'\necho \"$@\" > '" + versuch.ordner.string() + "/argumente'\n");
    const Umgebungsvariable pfad("PATH", (versuch.ordner / "bin").string());
    Rechenprogramm programm({"--zusatz"});
    EXPECT_TRUE(programm.istDa());
    Arbeitsmappe mappe = muster();
    programm.öffne(mappe);
    ASSERT_TRUE(warteBis([&] { return fs::exists(versuch.ordner / "argumente"); }, 20));
    const std::string argumente = leseDatei(versuch.ordner / "argumente");
    EXPECT_TRUE(argumente.starts_with("--zusatz -n " + versuch.temp().string())) << argumente;
    EXPECT_GT(fs::file_size(versuch.ordner / "gelesen"), 1000U);
    EXPECT_TRUE(warteBis([&] { return anzahlIn(versuch.temp()) == 0; }, sekundenBisEntfernt));
}

TEST(Rechenprogramm, einProgrammDasNichtStartetIstWieKeines)
{
    const Calcversuch versuch;
    versuch.legeProgrammAn("soffice", "#!/gibt/es/nicht\n");
    const Umgebungsvariable pfad("PATH", (versuch.ordner / "bin").string());
    Rechenprogramm programm;
    Arbeitsmappe mappe = muster();
    EXPECT_TRUE(programm.istDa());
    EXPECT_FALSE(programm.öffne(mappe));
    EXPECT_TRUE(warteBis([&] { return anzahlIn(versuch.temp()) == 0; }, 5));
}

TEST(Rechenprogramm, sonstDasProgrammDesDesktopsAufDerGeschütztenDatei)
{
    const Calcversuch versuch;
    versuch.legeProgrammAn("xdg-mime", "#!/bin/sh\necho tabelle.desktop\n");
    versuch.legeProgrammAn("xdg-open", "#!/bin/sh\necho \"$@\" > '" + versuch.ordner.string() + "/argumente'\n");
    const Umgebungsvariable pfad("PATH", (versuch.ordner / "bin").string());
    {
        Rechenprogramm programm;
        EXPECT_TRUE(programm.istDa());
        Arbeitsmappe mappe = muster();
        programm.öffne(mappe);
        ASSERT_TRUE(warteBis([&] { return !leseDatei(versuch.ordner / "argumente").empty(); }, 20));
        std::string datei = leseDatei(versuch.ordner / "argumente");
        datei.pop_back();
        EXPECT_EQ(rechte(datei), 0400U);
        const Rechenprogramm zweites;
        EXPECT_TRUE(fs::exists(datei));
    }
    EXPECT_EQ(anzahlIn(versuch.temp()), 1U);
    const Rechenprogramm nächsterLauf;
    EXPECT_EQ(anzahlIn(versuch.temp()), 0U);
}

TEST(Rechenprogramm, stattEinesDasNichtStartetDasDesDesktops)
{
    const Calcversuch versuch;
    versuch.legeProgrammAn("soffice", "#!/gibt/es/nicht\n");
    versuch.legeProgrammAn("xdg-mime", "#!/bin/sh\necho tabelle.desktop\n");
    versuch.legeProgrammAn("xdg-open", "#!/bin/sh\necho \"$@\" > '" + versuch.ordner.string() + "/argumente'\n");
    const Umgebungsvariable pfad("PATH", (versuch.ordner / "bin").string());
    Rechenprogramm programm;
    Arbeitsmappe mappe = muster();
    EXPECT_TRUE(programm.öffne(mappe));
    EXPECT_TRUE(warteBis([&] { return !leseDatei(versuch.ordner / "argumente").empty(); }, 20));
}

TEST(Rechenprogramm, einDesktopOhneTabellenprogrammZähltNicht)
{
    const Calcversuch versuch;
    versuch.legeProgrammAn("xdg-mime", "#!/bin/sh\necho\n");
    versuch.legeProgrammAn("xdg-open", "#!/bin/sh\n");
    const Umgebungsvariable pfad("PATH", (versuch.ordner / "bin").string());
    EXPECT_FALSE(Rechenprogramm().istDa());
}

/// A screen that nobody sees.
class Schattenschirm {
public:
    explicit Schattenschirm(const fs::path& ordner)
    {
        const std::string ausgabe = ordner.string() + "/anzeige";
        m_kind = fork();
        if (m_kind == 0) {
            const int griff = open(ausgabe.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
            dup2(griff, 3);
            // without -noreset it starts anew whenever a question about its windows was the last client to go, and a
            // spreadsheet program that is just coming up loses it
            execlp("Xvfb", "Xvfb", "-displayfd", "3", "-screen", "0", "1366x768x24", "-nolisten", "tcp", "-noreset",
                   nullptr);
            _exit(127);
        }
        warteBis([&] { return leseDatei(ausgabe).ends_with('\n'); }, 30);
        nummer = ":" + leseDatei(ausgabe);
        nummer.pop_back();
    }
    Schattenschirm(const Schattenschirm&) = delete;
    Schattenschirm& operator=(const Schattenschirm&) = delete;
    ~Schattenschirm()
    {
        kill(m_kind, SIGTERM);
        waitpid(m_kind, nullptr, 0);
    }

    std::string nummer;

private:
    pid_t m_kind;
};

/// Ends the processes that were started with this profile, and no others.
void beendeProzesseMit(const std::string& profil)
{
    std::error_code egal;
    for (const auto& eintrag : fs::directory_iterator("/proc", egal)) {
        const std::string name = eintrag.path().filename().string();
        if (std::all_of(name.begin(), name.end(), [](char z) { return z >= '0' && z <= '9'; }) &&
            leseDatei(eintrag.path() / "cmdline").find(profil) != std::string::npos) {
            kill(std::stoi(name), SIGTERM);
        }
    }
}

TEST(Rechenprogramm, libreOfficeZeigtEinUngesichertesDokument)
{
    const Calcversuch versuch;
    const Schattenschirm schirm(versuch.ordner);
    const Umgebungsvariable anzeige("DISPLAY", schirm.nummer);
    const Umgebungsvariable heim("HOME", versuch.ordner.string());
    Rechenprogramm programm({versuch.profil(), "--norestore", "--nologo"});
    ASSERT_TRUE(programm.istDa());
    Arbeitsmappe mappe = muster();
    programm.öffne(mappe);
    std::string fenster;
    const bool gefunden = warteBis(
        [&] {
            fenster = ausgabeVon(
                "for f in $(xdotool search --onlyvisible --name Calc 2>/dev/null); do xdotool getwindowname $f; done");
            return fenster.find(" 1 - LibreOffice Calc") != std::string::npos;
        },
        120);
    EXPECT_TRUE(gefunden) << fenster;
    // a new document has no name of a file
    EXPECT_EQ(fenster.find("Tolvek7"), std::string::npos) << fenster;
    EXPECT_TRUE(warteBis(
        [&] {
            return !fs::exists(versuch.temp()) ||
                   std::none_of(fs::directory_iterator(versuch.temp()), {}, [](const auto& e) {
                       return e.path().filename().string().starts_with("tolvek7-mappe-");
                   });
        },
        sekundenBisEntfernt));
    beendeProzesseMit(versuch.profil());
    warteBis([&] { return ausgabeVon("xdotool search --name Calc 2>/dev/null").empty(); }, 10);
}

} // namespace

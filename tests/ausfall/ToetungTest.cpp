#include "ausfall/Prozess.h"
#include "ausfall/Vorlage.h"
#include "store/Pruefung.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>
#include <thread>

// The real process is killed by the kernel at each call that changes a file, or the call fails; then the program is
// started again, killed meanwhile, and started once more. The three tables together must be those from before or after
// the action.
//
//   TOLVEK_AUSFALL_SCHRITT  one point of so many (1: all of them)
//   TOLVEK_AUSFALL_SAAT     where the sample begins, and where the recovery is killed

namespace fs = std::filesystem;

namespace {

long zahlAus(const char* name, long sonst)
{
    const char* wert = std::getenv(name);
    return wert == nullptr ? sonst : std::strtol(wert, nullptr, 10);
}

long saat()
{
    static const long eine = zahlAus("TOLVEK_AUSFALL_SAAT", static_cast<long>(std::random_device()() % 1000));
    return eine;
}

struct Fall {
    std::string name;
    std::string handlung;
    void (*legeAn)(const fs::path&);
    bool abStart = false; ///< the start itself is the action
};

void PrintTo(const Fall& fall, std::ostream* strom)
{
    *strom << fall.name;
}

struct Ruf {
    std::string name;
    std::string pfad;
};

std::vector<Ruf> leseListe(const fs::path& liste)
{
    std::vector<Ruf> rufe;
    std::istringstream text(liesDatei(liste));
    for (std::string zeile; std::getline(text, zeile);) {
        std::istringstream worte(zeile);
        std::string nummer;
        Ruf ruf;
        worte >> nummer >> ruf.name;
        std::getline(worte >> std::ws, ruf.pfad);
        rufe.push_back(ruf);
    }
    return rufe;
}

struct Punkt {
    std::string plan;
    std::string ort;
};

std::vector<Punkt> tötungspunkte(const std::vector<Ruf>& rufe)
{
    std::vector<Punkt> punkte;
    for (std::size_t i = 0; i < rufe.size(); ++i) {
        const auto stelle = std::to_string(i + 1);
        const auto ort = rufe[i].name + " " + rufe[i].pfad;
        punkte.push_back({"vor:" + stelle, ort});
        if (rufe[i].name == "write") {
            punkte.push_back({"mitten:" + stelle, ort});
        }
    }
    punkte.push_back({"nach:" + std::to_string(rufe.size()), "end"});
    return punkte;
}

std::vector<Punkt> fehlerpunkte(const std::vector<Ruf>& rufe)
{
    std::vector<Punkt> punkte;
    for (std::size_t i = 0; i < rufe.size(); ++i) {
        const auto stelle = std::to_string(i + 1);
        const auto ort = rufe[i].name + " " + rufe[i].pfad;
        for (const int fehler : {ENOSPC, EIO, EACCES}) {
            punkte.push_back({"fehler:" + stelle + ":" + std::to_string(fehler), ort});
            punkte.push_back({"fehlerab:" + stelle + ":" + std::to_string(fehler), ort});
        }
    }
    return punkte;
}

/// The sample of this run: about so many of them, unless the environment says how far apart they lie.
std::vector<Punkt> stichprobe(const std::vector<Punkt>& alle, long etwa)
{
    const long schritt = zahlAus("TOLVEK_AUSFALL_SCHRITT", static_cast<long>(alle.size()) / etwa + 1);
    std::vector<Punkt> einige;
    for (std::size_t i = 0; i < alle.size(); ++i) {
        if ((static_cast<long>(i) + saat()) % schritt == 0) {
            einige.push_back(alle[i]);
        }
    }
    return einige;
}

class Versuchsreihe : public testing::TestWithParam<Fall> {
protected:
    void SetUp() override
    {
        fs::create_directories(vorlage);
        fall.legeAn(vorlage);
        if (fs::exists(vorlage / "Daten" / "kernDat.bak")) {
            alteSicherung = bakIn(vorlage);
        }
        if (!fall.abStart) {
            ASSERT_TRUE(startet(vorlage)) << "the folder before the action";
        }
    }

    fs::path frischeKopie() const
    {
        const auto kopie = platz.pfad() / "kopie";
        fs::remove_all(kopie);
        fs::copy(vorlage, kopie, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        return kopie;
    }
    Umgebungswerte werte(const fs::path& ordner, const std::string& plan) const
    {
        auto alle = vorspann(ordner, plan);
        if (!fall.abStart) {
            alle["AUSFALL_WARTET"] = "1";
        }
        return alle;
    }
    /// Whether the program comes up to its main menu without a word.
    static bool startet(const fs::path& ordner)
    {
        Prozess start(handlung(ordner, "start"));
        const bool läuft = start.warte() && start.status() == 0 && start.sagt("HAUPTMENÜ") && !start.sagt("MELDUNG");
        if (!läuft) {
            std::cout << start.ausgabe();
        }
        return läuft;
    }
    std::vector<Ruf> rufeDerHandlung() const
    {
        const auto ordner = frischeKopie();
        auto alle = werte(ordner, "");
        const auto liste = platz.pfad() / "liste";
        alle["AUSFALL_LISTE"] = liste.string();
        Prozess lauf(handlung(ordner, fall.handlung), alle);
        EXPECT_TRUE(lauf.warte() && lauf.sagt("FERTIG")) << lauf.ausgabe();
        return leseListe(liste);
    }
    void messeVorherUndNachher()
    {
        const auto ordner = frischeKopie();
        {
            Prozess getötet(handlung(ordner, fall.handlung), werte(ordner, "vor:1"));
            ASSERT_TRUE(getötet.warte());
            ASSERT_EQ(getötet.signal(), SIGKILL) << getötet.ausgabe();
        }
        ASSERT_TRUE(startet(ordner));
        vorher = tabellenIn(ordner);
        berichtVorher = prüfberichtÜber(ordner);
        const auto anderer = frischeKopie();
        Prozess ganz(handlung(anderer, fall.handlung));
        ASSERT_TRUE(ganz.warte() && ganz.sagt("FERTIG")) << ganz.ausgabe();
        ASSERT_TRUE(startet(anderer));
        nachher = tabellenIn(anderer);
        berichtNachher = prüfberichtÜber(anderer);
        EXPECT_TRUE(berichtVorher.starts_with("Keine Befunde")) << berichtVorher;
        EXPECT_TRUE(berichtNachher.starts_with("Keine Befunde")) << berichtNachher;
        if (!fall.abStart) {
            ASSERT_NE(vorher, nachher) << "the action changes something";
        }
    }
    /// The program's own checker as the referee.
    static std::string prüfberichtÜber(const fs::path& ordner)
    {
        std::ostringstream bericht;
        pruefe(ordner, bericht);
        return bericht.str();
    }
    /// Starts that are killed on the way, at any of their calls.
    void töteBeimErholen(const fs::path& ordner, int wieOft)
    {
        std::uniform_int_distribution<int> stelle(1, 40);
        for (int i = 0; i < wieOft; ++i) {
            const auto plan = (i % 2 == 0 ? "vor:" : "nach:") + std::to_string(stelle(zufall));
            Prozess start(handlung(ordner, "start"), vorspann(ordner, plan));
            EXPECT_TRUE(start.warte());
            ++erholungen;
        }
    }
    void erwarteVorherOderNachher(const fs::path& ordner, const Punkt& punkt)
    {
        ++punkte;
        if (!startet(ordner)) {
            ++nichtStartbar;
            ADD_FAILURE() << "does not start: " << punkt.plan << " " << punkt.ort;
            return;
        }
        const auto ist = tabellenIn(ordner);
        istNachher = ist == nachher;
        if (!istNachher && ist != vorher) {
            ++dazwischen;
            ADD_FAILURE() << "between: " << punkt.plan << " " << punkt.ort;
        }
        EXPECT_EQ(prüfberichtÜber(ordner), istNachher ? berichtNachher : berichtVorher)
            << punkt.plan << " " << punkt.ort;
        EXPECT_EQ(resteIn(ordner), "") << punkt.plan << " " << punkt.ort;
        if (fall.abStart) {
            EXPECT_TRUE(alteSicherung == ist || hebtAuf(ordner, alteSicherung)) << punkt.plan << " " << punkt.ort;
            EXPECT_EQ(bakIn(ordner), ist) << punkt.plan << " " << punkt.ort;
        }
    }
    void berichte(const char* was) const
    {
        std::cout << "[ausfall] " << fall.name << ", " << was << ": points " << punkte << ", kills while recovering "
                  << erholungen << ", between " << dazwischen << ", not startable " << nichtStartbar << " (seed "
                  << saat() << ")" << std::endl;
        EXPECT_GT(punkte, 0);
    }

    Fall fall = GetParam();
    Arbeitsplatz platz;
    fs::path vorlage = platz.pfad() / "vorlage";
    Dreitafel vorher;
    Dreitafel nachher;
    std::string berichtVorher;
    std::string berichtNachher;
    Dreitafel alteSicherung; ///< the .bak files before the start
    std::minstd_rand zufall{static_cast<unsigned>(saat())};
    bool istNachher = false;
    int punkte = 0;
    int erholungen = 0;
    int dazwischen = 0;
    int nichtStartbar = 0;
};

class Toetung : public Versuchsreihe {};

TEST_P(Toetung, LäßtVorherOderNachher)
{
    ASSERT_NO_FATAL_FAILURE(messeVorherUndNachher());
    const auto rufe = rufeDerHandlung();
    ASSERT_GT(rufe.size(), 10U);
    bool warNachher = false;
    for (const auto& punkt : stichprobe(tötungspunkte(rufe), 7)) {
        const auto ordner = frischeKopie();
        Prozess lauf(handlung(ordner, fall.handlung), werte(ordner, punkt.plan));
        ASSERT_TRUE(lauf.warte()) << punkt.plan;
        ASSERT_EQ(lauf.signal(), SIGKILL) << punkt.plan << " " << punkt.ort << "\n" << lauf.ausgabe();
        töteBeimErholen(ordner, 2);
        erwarteVorherOderNachher(ordner, punkt);
        EXPECT_TRUE(istNachher || !warNachher) << "what was there once is gone again: " << punkt.plan;
        warNachher = istNachher;
    }
    berichte("killed");
}

#ifdef AUSFALL_PROGRAMM
/// The program itself with its windows, without a display. It finds its records beside itself.
class Programmstart : public Versuchsreihe {
protected:
    static std::vector<std::string> programm(const fs::path& ordner) { return {(ordner / "tolvek7").string()}; }
    static Umgebungswerte ohneBildschirm(Umgebungswerte alle)
    {
        alle["QT_QPA_PLATFORM"] = "offscreen";
        return alle;
    }
    static void legeProgrammHin(const fs::path& ordner)
    {
        fs::copy_file(AUSFALL_PROGRAMM, ordner / "tolvek7", fs::copy_options::skip_existing);
    }
    /// The calls of a start: it is done when no more come.
    std::vector<Ruf> rufeDesStarts() const
    {
        const auto ordner = frischeKopie();
        legeProgrammHin(ordner);
        const auto liste = platz.pfad() / "liste";
        auto alle = vorspann(ordner, "", {{"AUSFALL_LISTE", liste.string()}});
        Prozess lauf(programm(ordner), ohneBildschirm(alle));
        std::size_t bisher = 0;
        for (int ruhe = 0; ruhe < 10; ++ruhe) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            const auto jetzt = fs::exists(liste) ? leseListe(liste).size() : 0;
            ruhe = jetzt == bisher && jetzt > 0 ? ruhe : 0;
            bisher = jetzt;
        }
        return leseListe(liste);
    }
};

TEST_P(Programmstart, GetötetUndWiederGestartet)
{
    ASSERT_NO_FATAL_FAILURE(messeVorherUndNachher());
    const auto rufe = rufeDesStarts();
    ASSERT_GT(rufe.size(), 10U);
    for (const auto& punkt : stichprobe(tötungspunkte(rufe), 4)) {
        const auto ordner = frischeKopie();
        legeProgrammHin(ordner);
        Prozess lauf(programm(ordner), ohneBildschirm(vorspann(ordner, punkt.plan)));
        ASSERT_TRUE(lauf.warte()) << punkt.plan;
        ASSERT_EQ(lauf.signal(), SIGKILL) << punkt.plan << " " << punkt.ort << "\n" << lauf.ausgabe();
        töteBeimErholen(ordner, 1);
        erwarteVorherOderNachher(ordner, punkt);
    }
    berichte("tolvek7 killed");
}
#endif

/// What the person is told is what holds: a failure leaves the old state, unless it says that the entry is saved.
TEST_P(Toetung, FehlerSagtWasGilt)
{
    ASSERT_NO_FATAL_FAILURE(messeVorherUndNachher());
    for (const auto& punkt : stichprobe(fehlerpunkte(rufeDerHandlung()), 4)) {
        const auto ordner = frischeKopie();
        Prozess lauf(handlung(ordner, fall.handlung), werte(ordner, punkt.plan));
        ASSERT_TRUE(lauf.warte()) << punkt.plan;
        EXPECT_EQ(lauf.signal(), 0) << punkt.plan << " " << punkt.ort;
        const bool sagtGespeichert = lauf.ausgabe().find("ist gespeichert und wird") != std::string::npos;
        const bool sagtFehler = lauf.ausgabe().find("Laufzeitfehler") != std::string::npos ||
                                lauf.ausgabe().find("keine Daten übernommen") != std::string::npos;
        // places of windows are written when the action is done; a failure there is told by itself
        const bool betrifftEinstellungen =
            punkt.ort.find("Dummy.ini") != std::string::npos || punkt.ort.ends_with("/kopie");
        erwarteVorherOderNachher(ordner, punkt);
        if (fall.abStart) {
            continue; // the next start has done it anyway
        }
        if (sagtGespeichert || !sagtFehler) {
            EXPECT_TRUE(istNachher) << punkt.plan << " " << punkt.ort << "\n" << lauf.ausgabe();
        } else if (!punkt.plan.starts_with("fehlerab") && !betrifftEinstellungen) {
            EXPECT_FALSE(istNachher) << punkt.plan << " " << punkt.ort << "\n" << lauf.ausgabe();
        }
    }
    berichte("failed");
}

const std::vector<Fall>& fälle()
{
    static const std::vector<Fall> alle{
        {"Erststart", "start", legeNichtsAn, true},
        {"Sitzungssicherung", "start", legeBestandMitAlterSicherungAn, true},
        {"Reparatur", "start", legeBestandMitKurzenJahrenAn, true},
        {"NeueBetreuung", "neue-betreuung", legeBestandAn},
        {"GeaenderteBetreuung", "betreuung-aendern", legeBestandAn},
        {"GeloeschteBetreuung", "betreuung-loeschen", legeBestandAn},
        {"NeuerKlient", "klient-neu", legeBestandAn},
        {"GeloeschterKlient", "klient-loeschen", legeBestandAn},
        {"Rollback", "rollback", legeBestandAn},
        {"Import", "import", legeAltdatenAn},
    };
    return alle;
}

#ifdef AUSFALL_PROGRAMM
INSTANTIATE_TEST_SUITE_P(ToetungDesProgramms, Programmstart,
                         testing::Values(Fall{"Erststart", "start", legeNichtsAn, true},
                                         Fall{"Sitzungssicherung", "start", legeBestandMitAlterSicherungAn, true}),
                         [](const auto& angabe) { return angabe.param.name; });
#endif

INSTANTIATE_TEST_SUITE_P(Handlungen, Toetung, testing::ValuesIn(fälle()),
                         [](const auto& angabe) { return angabe.param.name; });

} // namespace

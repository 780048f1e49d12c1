#include "ausfall/Vorlage.h"
#include "windows/Windowsprozess.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>

// The real process is killed at file operations of each action; then the program is started again. The three tables
// together must be those from before or after the action.
//
//   TOLVEK_AUSFALL_SCHRITT  one operation of so many (1: all of them)

namespace fs = std::filesystem;

namespace {

constexpr int getötet = 9;

struct Fall {
    const char* handlung;
    void (*legeAn)(const fs::path&);
};

void PrintTo(const Fall& fall, std::ostream* strom)
{
    *strom << fall.handlung;
}

/// Of an action the sample takes about so many operations; where it begins is drawn anew in each run.
constexpr int etwa = 5;

int schrittBei(int operationen)
{
    const char* wert = std::getenv("TOLVEK_AUSFALL_SCHRITT");
    return wert == nullptr ? operationen / etwa + 1 : std::atoi(wert);
}

class Windowstoetung : public testing::TestWithParam<Fall> {
protected:
    void legeAn() const
    {
        fs::remove_all(ordner);
        fs::create_directories(ordner);
        GetParam().legeAn(ordner);
    }
    bool startet() const { return Windowsprozess(ordner, "start").warte() == 0; }
    /// How many operations the action has; the tables before (killed at the first one) and after, as the next start
    /// leaves them.
    int messe()
    {
        legeAn();
        EXPECT_EQ(Windowsprozess(ordner, GetParam().handlung, 1).warte(), getötet);
        EXPECT_TRUE(startet());
        vorher = tabellenIn(ordner);
        legeAn();
        Windowsprozess ganz(ordner, GetParam().handlung);
        EXPECT_EQ(ganz.warte(), 0) << ganz.ausgabe();
        EXPECT_TRUE(startet());
        nachher = tabellenIn(ordner);
        const std::string wort = "OPERATIONEN ";
        const auto ort = ganz.ausgabe().find(wort);
        return ort == std::string::npos ? 0 : std::atoi(ganz.ausgabe().c_str() + ort + wort.size());
    }
    void töteBei(int stelle) const
    {
        legeAn();
        Windowsprozess opfer(ordner, GetParam().handlung, stelle);
        EXPECT_EQ(opfer.warte(), getötet) << stelle << ": " << opfer.ausgabe();
        ASSERT_TRUE(startet()) << "does not start after a kill at " << stelle;
        const auto ist = tabellenIn(ordner);
        EXPECT_TRUE(ist == vorher || ist == nachher) << "a mixture after a kill at " << stelle;
        EXPECT_EQ(resteIn(ordner), "") << stelle;
    }

    Arbeitsplatz platz;
    fs::path ordner = platz.pfad() / "Tolvek7";
    Dreitafel vorher;
    Dreitafel nachher;
};

TEST_P(Windowstoetung, LäßtVorherOderNachher)
{
    const int operationen = messe();
    ASSERT_GT(operationen, 4);
    const bool istStart = std::string(GetParam().handlung) == "start";
    EXPECT_TRUE(istStart || vorher != nachher) << "the action changes nothing";
    const int schritt = schrittBei(operationen);
    std::uniform_int_distribution<int> anfang(1, schritt);
    std::random_device quelle;
    int punkte = 0;
    for (int stelle = anfang(quelle); stelle <= operationen && !HasFatalFailure(); stelle += schritt) {
        töteBei(stelle);
        ++punkte;
    }
    std::cout << GetParam().handlung << ": killed at " << punkte << " of " << operationen << " operations" << std::endl;
    EXPECT_GT(punkte, 0);
}

INSTANTIATE_TEST_SUITE_P(Handlungen, Windowstoetung,
                         testing::Values(Fall{"start", legeBestandMitAlterSicherungAn},
                                         Fall{"neue-betreuung", legeBestandAn},
                                         Fall{"betreuung-aendern", legeBestandAn},
                                         Fall{"betreuung-loeschen", legeBestandAn}, Fall{"klient-neu", legeBestandAn},
                                         Fall{"klient-loeschen", legeBestandAn}, Fall{"rollback", legeBestandAn},
                                         Fall{"import", legeAltdatenAn}));

} // namespace

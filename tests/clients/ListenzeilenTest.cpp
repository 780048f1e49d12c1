#include "clients/Listenzeilen.h"

#include "hilfen/Testumgebung.h"
#include "platform/umgebung/Laufzeitfehler.h"

namespace {

using Zeilenliste = std::vector<std::string>;

class Listenzeilen : public testing::Test {
protected:
    void SetUp() override { lauf.legeTabellenAn(); }

    Testlauf lauf;
};

TEST_F(Listenzeilen, IdHatMindestensVierStellen)
{
    EXPECT_EQ(idText(""), "0000");
    EXPECT_EQ(idText("7"), "0007");
    EXPECT_EQ(idText("1234"), "1234");
    EXPECT_EQ(idText("12345"), "12345");
}

TEST_F(Listenzeilen, KlientenInDateifolgeOhneGeschlechtUndMemo)
{
    Testlauf::schreibeZeilen(lauf.pfade().kernDat, {satz({"", "20", "o", "Adler", "Anna", "Weg", "1", "Ort", "weiblich",
                                                          "01.02.1970", "Memo"}),
                                                    satz({"", "3", std::string_view("\0", 1), "Bauer"})});
    EXPECT_EQ(klientenzeilen(), (Zeilenliste{satz({"0020", "o", "Adler", "Anna", "Weg", "1", "Ort", "01.02.1970"}),
                                             satz({"0003", "", "Bauer", "", "", "", "", ""})}));
}

TEST_F(Listenzeilen, BetreuungenNurDesKlienten)
{
    Testlauf::schreibeZeilen(lauf.pfade().betrDat,
                             {satz({"1", "1", "01.01.2001", "offen", "k.A."}), satz({"11", "1", "a", "b"}),
                              satz({"2", "1", "a", "b"}), satz({" 01", "2", "01.01.2002", "02.02.2002"})});
    EXPECT_EQ(betreuungszeilen(1),
              (Zeilenliste{satz({"1", "1", "01.01.2001", "offen"}), satz({" 01", "2", "01.01.2002", "02.02.2002"})}));
    EXPECT_TRUE(betreuungszeilen(-1).empty());
}

TEST_F(Listenzeilen, SchlüsselDerKeineZahlIst)
{
    Testlauf::schreibeZeilen(lauf.pfade().betrDat, {satz({"1", "1"}), ""});
    EXPECT_THROW(betreuungszeilen(1), Laufzeitfehler);
}

TEST_F(Listenzeilen, FehlendeTabelle)
{
    std::filesystem::remove(lauf.pfade().kernDat);
    EXPECT_THROW(klientenzeilen(), Laufzeitfehler);
}

} // namespace

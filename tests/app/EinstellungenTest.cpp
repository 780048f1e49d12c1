#include "app/Einstellungen.h"

#include "hilfen/Testumgebung.h"
#include "platform/umgebung/Laufzeitfehler.h"

namespace {

class Einstellungen : public testing::Test {
protected:
    Testlauf lauf;

    void steht(std::string_view inhalt) const { Testlauf::schreibe(lauf.pfade().ini, inhalt); }
    std::string datei() const { return Testlauf::lies(lauf.pfade().ini); }
};

TEST_F(Einstellungen, FehlenderSchlüsselIstLeer)
{
    steht("");
    EXPECT_EQ(leseIni("frmMemo.top"_t), "");
    EXPECT_EQ(leseLage("frmMemo.top"_t), 0);
}

TEST_F(Einstellungen, LiestOhneRücksichtAufGroßUndLeerzeichen)
{
    steht("  FRMHAUPTMEN\xDC.Top =   12 \r\n");
    EXPECT_EQ(leseIni(" frmHauptmenü.TOP "_t), "12");
}

TEST_F(Einstellungen, LiestHinterDemPassendenGleichheitszeichen)
{
    steht("a = b = c = d\r\n");
    EXPECT_EQ(leseIni("a"_t), "b = c = d");
    EXPECT_EQ(leseIni("a = b"_t), "c = d");
    EXPECT_EQ(leseIni("a=b"_t), "");
}

TEST_F(Einstellungen, LiestDieErsteZeileUndÜbergehtZeilenOhneGleichheitszeichen)
{
    steht("nichts\r\n\r\na = 1\r\na = 2\r\n");
    EXPECT_EQ(leseIni("a"_t), "1");
}

TEST_F(Einstellungen, TabulatorenSindKeineLeerzeichen)
{
    steht("a\t= 1\r\n");
    EXPECT_EQ(leseIni("a"_t), "");
}

TEST_F(Einstellungen, NeuerSchlüsselKommtAnsEnde)
{
    steht("z = 1\r\n");
    schreibeIni("a"_t, "2"_t);
    EXPECT_EQ(datei(), "z = 1\r\na = 2\r\n");
}

TEST_F(Einstellungen, ErsetztJedeZeileUndBehältDieSchreibweise)
{
    steht("  Ab   =1\r\nc=  d  \r\naB=x=y");
    schreibeIni("AB"_t, "2"_t);
    EXPECT_EQ(datei(), "Ab   = 2\r\nc=  d  \r\naB= 2\r\n");
    EXPECT_FALSE(std::filesystem::exists(lauf.pfade().dummyIni));
}

TEST_F(Einstellungen, FremdeBytesBleiben)
{
    const std::string fremd("\x81\x8D\x8F\x90\x9D\x00\xB7 = \xFF", 12);
    steht(fremd + "\r\n");
    schreibeIni("a"_t, "1"_t);
    EXPECT_EQ(datei(), fremd + "\r\na = 1\r\n");
}

TEST_F(Einstellungen, ZeileOhneGleichheitszeichenLäßtDieDateiStehen)
{
    for (const auto* inhalt : {"a = 1\r\nkaputt\r\nb = 2\r\n", "\r\n"}) {
        steht(inhalt);
        EXPECT_THROW(schreibeIni("a"_t, "2"_t), Laufzeitfehler);
        EXPECT_EQ(datei(), inhalt);
    }
}

TEST_F(Einstellungen, FehlendeDateiIstEinLaufzeitfehler)
{
    EXPECT_THROW(leseIni("a"_t), Laufzeitfehler);
    EXPECT_THROW(schreibeIni("a"_t, "1"_t), Laufzeitfehler);
    EXPECT_FALSE(std::filesystem::exists(lauf.pfade().ini));
}

TEST_F(Einstellungen, LagenMitPunktUndKomma)
{
    const std::vector<std::pair<std::string, double>> proben{
        {"300", 300},   {"-15", -15}, {"+15", 15},   {"12,5", 12.5},
        {"12.5", 12.5}, {" 7 ", 7},   {"", 0},       {"oben", 0},
        {"12 cm", 0},   {"1.2.3", 0}, {"1,2,3", 0},  {"--1", 0},
        {"1e3", 0},     {"inf", 0},   {"nan", 0},    {"99999999999999999", 0},
        {"+-3", 0},     {"-", 0},     {"1.234,5", 0}};
    for (const auto& [text, wert] : proben) {
        steht("a = " + text + "\r\n");
        EXPECT_DOUBLE_EQ(leseLage("a"_t), wert) << text;
    }
}

TEST_F(Einstellungen, LagenWerdenGanzGeschrieben)
{
    steht("");
    schreibeLage("a"_t, 12.5);
    schreibeLage("b"_t, -0.2);
    schreibeLage("c"_t, -1500.7);
    EXPECT_EQ(datei(), "a = 13\r\nb = 0\r\nc = -1501\r\n");
}

} // namespace

#include "satz/WeitereDiagnosen.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

namespace {

TEST(WeitereDiagnosen, LeerGehtÜberall)
{
    for (int nummer = 1; nummer <= 12; ++nummer) {
        EXPECT_TRUE(istWeitereDiagnose(nummer, "")) << nummer;
    }
}

TEST(WeitereDiagnosen, ZiffernfelderNehmenDreiFormen)
{
    for (int nummer = 1; nummer <= 8; ++nummer) {
        for (const auto* gut : {"12", "12.3", "12.34", "00"}) {
            EXPECT_TRUE(istWeitereDiagnose(nummer, gut)) << nummer << ' ' << gut;
        }
        for (const auto* schlecht :
             {"1", "123", "1.234", "12.", "12.345", "F32", "a2", "12,3", " 12", "12 ", "12.3x", ".", "1234"}) {
            EXPECT_FALSE(istWeitereDiagnose(nummer, schlecht)) << nummer << ' ' << schlecht;
        }
    }
}

TEST(WeitereDiagnosen, AndereNehmenEinZeichenDavor)
{
    for (int nummer = 9; nummer <= 12; ++nummer) {
        for (const auto* gut : {"F32", "F32.1", "F32.10", "932.1", "?11", " 11"}) {
            EXPECT_TRUE(istWeitereDiagnose(nummer, gut)) << nummer << ' ' << gut;
        }
        for (const auto* schlecht : {"32.1", "32", "F3", "F", "F32.", "FF32", "F32.123", "F32,1"}) {
            EXPECT_FALSE(istWeitereDiagnose(nummer, schlecht)) << nummer << ' ' << schlecht;
        }
    }
}

TEST(WeitereDiagnosen, UmlautIstEinZeichenTrennerKeins)
{
    EXPECT_TRUE(istWeitereDiagnose(9, "Ä11"_t));
    EXPECT_FALSE(istWeitereDiagnose(9, verbinde(trenner, "11"_t)));
    EXPECT_FALSE(istWeitereDiagnose(1, std::string_view(&trenner, 1)));
}

TEST(WeitereDiagnosen, DieMeldungNenntDieForm)
{
    EXPECT_EQ(meldungZuWeitererDiagnose(1), "In diesem Feld ist nur folgendes Format erlaubt: ##.##\r\n"
                                            "(Das 'F' wird automatisch hinzugefügt)\r\nEingabe wird zurückgesetzt"_t);
    EXPECT_EQ(meldungZuWeitererDiagnose(4), meldungZuWeitererDiagnose(1));
    EXPECT_EQ(meldungZuWeitererDiagnose(8), "In diesem Feld ist nur folgendes Format erlaubt: ##.##\r\n"
                                            "(Das 'G' wird automatisch hinzugefügt)\r\nEingabe wird zurückgesetzt"_t);
    EXPECT_EQ(meldungZuWeitererDiagnose(9), "In diesem Feld ist nur folgendes Format erlaubt: A11.11\r\n"
                                            "Eingabe wird zurückgesetzt"_t);
    EXPECT_EQ(meldungZuWeitererDiagnose(12), meldungZuWeitererDiagnose(9));
}

} // namespace

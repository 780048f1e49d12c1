#include "platform/dateien/Pruefsumme.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view geprüfte = "1;1;01.02.2003;offen;o\r\n";

// A start must know the notes that the version before it has left.
TEST(Prüfsumme, bleibtDieselbeVonFassungZuFassung)
{
    EXPECT_EQ(Prüfsumme::von(""), 0x3A1541D1D7DDC036U);
    EXPECT_EQ(Prüfsumme::von("abc"), 0x2F741453EF59AB99U);
    EXPECT_EQ(Prüfsumme::von(geprüfte), 0x2ECDACD992A60FAAU);
}

TEST(Prüfsumme, istDieselbeWieAuchGeschnittenWird)
{
    for (std::size_t erster = 0; erster <= geprüfte.size(); ++erster) {
        for (std::size_t zweiter = erster; zweiter <= geprüfte.size(); ++zweiter) {
            Prüfsumme summe;
            summe.nimm(geprüfte.substr(0, erster));
            summe.nimm(geprüfte.substr(erster, zweiter - erster));
            summe.nimm(geprüfte.substr(zweiter));
            EXPECT_EQ(summe.wert(), Prüfsumme::von(geprüfte)) << erster << ' ' << zweiter;
        }
    }
}

TEST(Prüfsumme, siehtJedesByteUndDieLänge)
{
    std::string andere(geprüfte);
    for (char& zeichen : andere) {
        ++zeichen;
        EXPECT_NE(Prüfsumme::von(andere), Prüfsumme::von(geprüfte));
        --zeichen;
    }
    EXPECT_NE(Prüfsumme::von(andere + '\0'), Prüfsumme::von(geprüfte));
}

} // namespace

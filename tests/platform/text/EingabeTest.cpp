#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

TEST(Eingabe, FehlendeZeichenWerdenZumNächstenBuchstaben)
{
    const auto ergebnis = nimmEingabe(U"Ćirić Şen Łódź Nguyễn", false);
    EXPECT_EQ(ergebnis.text, "Ciric Sen Lódz Nguyen"_t);
    EXPECT_TRUE(ergebnis.ersetzt);
    EXPECT_FALSE(ergebnis.verweigert);
}

TEST(Eingabe, OhneNächstenBuchstabenWirdNichtsGenommen)
{
    const auto ergebnis = nimmEingabe(U"a漢Жb\uFFFD", false);
    EXPECT_EQ(ergebnis.text, "ab");
    EXPECT_TRUE(ergebnis.verweigert);
    EXPECT_EQ(ergebnis.text.find('?'), std::string::npos);
}

TEST(Eingabe, WasDieCodepageHatBleibt)
{
    const auto ergebnis = nimmEingabe(U"Müller „Straße“ 5 € – Ž·", false);
    EXPECT_EQ(ergebnis.text, "Müller „Straße“ 5 € – Ž·"_t);
    EXPECT_FALSE(ergebnis.ersetzt);
    EXPECT_FALSE(ergebnis.verweigert);
}

TEST(Eingabe, EinzeiligWerdenUmbrücheLeerzeichen)
{
    EXPECT_EQ(nimmEingabe(U"a\r\nb\tc\nd", false).text, "a b c d");
}

TEST(Eingabe, MehrzeiligBleibenUmbrüche)
{
    EXPECT_EQ(nimmEingabe(U"a\nb\r\nc\rd\u2028e", true).text, "a\r\nb\r\nc\r\nd\r\ne");
    EXPECT_EQ(nimmEingabe(U"a\tb", true).text, "a b");
}

TEST(Eingabe, HöchstlängeSchneidetAb)
{
    EXPECT_EQ(nimmEingabe(std::u32string(300, U'ä'), false, 255).text.size(), 255U);
}

TEST(Eingabe, Utf8HinUndZurück)
{
    EXPECT_EQ(ausUtf8("ä€😀"), U"ä€😀");
    EXPECT_EQ(ausUtf8("a\xC3"), U"a\uFFFD");
    EXPECT_EQ(alsUtf8("Größe €"_t), "Größe €");
}

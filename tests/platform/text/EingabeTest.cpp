#include "platform/text/Eingabe.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

using namespace std::literals;

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
}

TEST(Eingabe, MehrzeiligSindTabulatorenText)
{
    const auto ergebnis = nimmEingabe(U"a\tb\vc\u0081d", true);
    EXPECT_EQ(ergebnis.text, "a\tbcd");
    EXPECT_TRUE(ergebnis.verweigert) << "other control characters are not taken";
}

TEST(Eingabe, BuchstabeUndAkzentWerdenEinZeichen)
{
    const auto ergebnis = nimmEingabe(U"Mu\u0308ller Cafe\u0301 S\u030C", false);
    EXPECT_EQ(ergebnis.text, "Müller Café Š"_t);
    EXPECT_FALSE(ergebnis.ersetzt);
    const auto ohne = nimmEingabe(U"c\u0301x", false);
    EXPECT_EQ(ohne.text, "cx");
    EXPECT_TRUE(ohne.ersetzt);
    EXPECT_TRUE(nimmEingabe(U"\u0301", false).verweigert);
}

namespace {

struct Schritt {
    std::string_view bisher;
    std::u32string_view jetzt;
    std::size_t marke;
    std::string_view erwartet;
    std::size_t erwarteteMarke;
};

} // namespace

TEST(Feldeingabe, WasNiemandAngefasstHatBleibtAufsByte)
{
    const auto alt = "a\xA0"
                     "b\tc\x81\r\nd"sv;
    const Schritt schritte[] = {
        {alt, U"a\u00A0b\tc\u0081\nde", 9,
         "a\xA0"
         "b\tc\x81\r\nde"sv,
         10},
        {alt, U"xa\u00A0b\tc\u0081\nd", 1,
         "xa\xA0"
         "b\tc\x81\r\nd"sv,
         1},
        {alt, U"a\u00A0b\tc\u0081d", 6,
         "a\xA0"
         "b\tc\x81"
         "d"sv,
         6},
        {alt, U"a\u00A0b\tc\u0081\n\nd", 7,
         "a\xA0"
         "b\tc\x81\r\n\r\nd"sv,
         8},
        {alt, U"a\u00A0b\tc漢\u0081\nd", 6, alt, 5},
        {alt, U"", 0, "", 0},
        {"aaaa", U"aaaxa", 4, "aaaxa", 4},
        {"unten", U"n", 1, "n", 1}, // typed over the whole text: the cursor stands behind it
        {"unten", U"", 0, "", 0},
        {"u", U"u\u0308", 2, "\xFC", 1},
        {"c", U"c\u0301", 2, "c", 1},
    };
    for (const auto& s : schritte) {
        const auto änderung = nimmÄnderung(s.bisher, s.jetzt, s.marke, true);
        EXPECT_EQ(änderung.ergebnis.text, s.erwartet) << alsUtf8(s.erwartet);
        EXPECT_EQ(änderung.schreibmarke, s.erwarteteMarke) << alsUtf8(s.erwartet);
    }
}

TEST(Feldeingabe, WasNichtGenommenWirdErsetztAuchNichts)
{
    const auto änderung = nimmÄnderung("abc", U"a漢", 2, false);
    EXPECT_EQ(änderung.ergebnis.text, "abc");
    EXPECT_TRUE(änderung.ergebnis.verweigert);
}

TEST(Feldeingabe, ZurückgenommenesKommtMitJedemByteWieder)
{
    const auto änderung = übertrageÄnderung("ad", U"a\u00A0\u0081\n\td", 5, true);
    EXPECT_EQ(änderung.ergebnis.text, "a\xA0\x81\r\n\td");
    EXPECT_EQ(änderung.schreibmarke, 6U);
    EXPECT_EQ(übertrageÄnderung("a\xA0\x81\r\nd", U"a\u0081\nd", 1, true).ergebnis.text, "a\x81\r\nd");
}

TEST(Feldeingabe, DieLängeGiltNurFürHinzugetipptes)
{
    const auto kürzer = nimmÄnderung("abcdefgh", U"abcdefg", 7, false, 5);
    EXPECT_EQ(kürzer.ergebnis.text, "abcdefg");
    EXPECT_FALSE(kürzer.ergebnis.gekürzt);
    const auto voll = nimmÄnderung("abcdefg", U"abcxdefg", 4, false, 5);
    EXPECT_EQ(voll.ergebnis.text, "abcdefg");
    EXPECT_EQ(voll.schreibmarke, 3U);
    EXPECT_TRUE(voll.ergebnis.gekürzt);
    EXPECT_EQ(nimmÄnderung("abc", U"abcxyz", 6, false, 5).ergebnis.text, "abcxy");
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

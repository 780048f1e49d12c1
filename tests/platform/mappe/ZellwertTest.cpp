#include "platform/mappe/Zellwert.h"

#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

Zellwert allgemein(std::string_view text)
{
    return leseZelle(text, Zelltyp::Allgemein);
}

struct Zahlfall {
    std::string_view text;
    double zahl;
};

TEST(Zellwert, zahlen)
{
    const std::vector<Zahlfall> fälle{
        {"0", 0},
        {"7", 7},
        {"-3", -3},
        {"+3", 3},
        {"-0", 0},
        {"007", 7},
        {"01067", 1067},
        {" 12 ", 12},
        {"1,5", 1.5},
        {"0,25", 0.25},
        {"1.234", 1234},
        {"1.234,5", 1234.5},
        {"-12.345.678,25", -12345678.25},
        {"1,5E3", 1500},
        {"2E2", 200},
        {"2e+2", 200},
        {"25E-2", 0.25},
        {"-1,5E3", -1500},
        {"123456789012345", 123456789012345.0},
        {"000000123456789012345", 123456789012345.0},
        {"0,000123456789012345", 0.000123456789012345},
        {"3,1400", 3.14},
    };
    for (const Zahlfall& fall : fälle) {
        const Zellwert wert = allgemein(fall.text);
        EXPECT_EQ(wert.art, Zellart::Zahl) << fall.text;
        EXPECT_EQ(wert.zahl, fall.zahl) << fall.text;
        EXPECT_EQ(wert.text, fall.text);
    }
}

TEST(Zellwert, keineZahlen)
{
    for (const std::string_view text : {"k.A.",
                                        "offen",
                                        "32.10",
                                        "1.5",
                                        "1.23",
                                        "1234.567",
                                        "1.2345",
                                        "1,",
                                        ",5",
                                        "1,2,3",
                                        "- 3",
                                        "--3",
                                        "+-3",
                                        "5-",
                                        "1 000",
                                        "12a",
                                        "E3",
                                        "1E",
                                        "1E+",
                                        "1.234E2",
                                        "1.234.",
                                        ".5",
                                        "1.234.56",
                                        "1234567890123456",
                                        "=1+1",
                                        "=5",
                                        "@5",
                                        "@SUM(A1)",
                                        "-",
                                        "+",
                                        "1E999",
                                        "5%",
                                        "5 \x80",
                                        "12:30",
                                        "1/2",
                                        "\t5",
                                        "0x10",
                                        "1,5E",
                                        "1.000,00.00",
                                        "(5)",
                                        "-abc",
                                        "F32.10",
                                        "nan",
                                        "inf",
                                        " ",
                                        "1,0000000000000000",
                                        "10000000000000000"}) {
        EXPECT_EQ(allgemein(text).art, Zellart::Text) << text;
        EXPECT_EQ(alsText(allgemein(text)), text);
    }
}

struct Datumsfall {
    std::string_view text;
    Datum datum;
};

TEST(Zellwert, datumswerte)
{
    const std::vector<Datumsfall> fälle{
        {"02.08.2007", {2007, 8, 2}},   {"2.8.07", {2007, 8, 2}},      {"1.1.00", {2000, 1, 1}},
        {"1.1.29", {2029, 1, 1}},       {"1.1.30", {1930, 1, 1}},      {"31.12.99", {1999, 12, 31}},
        {"01.01.1900", {1900, 1, 1}},   {"29.02.2008", {2008, 2, 29}}, {" 5.6.2007 ", {2007, 6, 5}},
        {"31.12.9999", {9999, 12, 31}},
    };
    for (const Datumsfall& fall : fälle) {
        const Zellwert wert = allgemein(fall.text);
        EXPECT_EQ(wert.art, Zellart::Datum) << fall.text;
        EXPECT_EQ(wert.datum, fall.datum) << fall.text;
    }
}

TEST(Zellwert, keinDatum)
{
    for (const std::string_view text :
         {"31.12.1899", "29.02.2007", "30.02.2007", "32.01.2007", "01.13.2007", "0.1.2007",    "1.0.2007",  "1.2.",
          "1.2",        "1.2.7",      "1.2.123",    "001.1.2007", "1.001.2007", "01.02.20070", "1.2.2007.", "1.2.2007x",
          "1. 2.2007",  "..",         "=1.2.2007",  "1-2-2007",   "1/2/2007",   "unbekannt"}) {
        EXPECT_EQ(allgemein(text).art, Zellart::Text) << text;
    }
}

TEST(Zellwert, minusHintenNurBeimTeilen)
{
    EXPECT_EQ(allgemein("5-").art, Zellart::Text);
    EXPECT_EQ(leseZelle("5-", Zelltyp::AllgemeinMinusHinten).zahl, -5);
    EXPECT_EQ(leseZelle("1.234,5-", Zelltyp::AllgemeinMinusHinten).zahl, -1234.5);
    EXPECT_EQ(leseZelle("7", Zelltyp::AllgemeinMinusHinten).zahl, 7);
    EXPECT_EQ(leseZelle("-5-", Zelltyp::AllgemeinMinusHinten).art, Zellart::Text);
    EXPECT_EQ(leseZelle("-", Zelltyp::AllgemeinMinusHinten).art, Zellart::Text);
    EXPECT_EQ(leseZelle("1.2.07", Zelltyp::AllgemeinMinusHinten).art, Zellart::Datum);
}

TEST(Zellwert, textBleibtText)
{
    for (const std::string_view text : {"5", "32.10", "02.08.2007", "1,5"}) {
        const Zellwert wert = leseZelle(text, Zelltyp::Text);
        EXPECT_EQ(wert.art, Zellart::Text);
        EXPECT_EQ(alsText(wert), text);
    }
}

TEST(Zellwert, leerIstLeer)
{
    EXPECT_EQ(allgemein("").art, Zellart::Leer);
    EXPECT_EQ(leseZelle("", Zelltyp::Text).art, Zellart::Leer);
    EXPECT_EQ(alsText(allgemein("")), "");
}

TEST(Zellwert, zeichenNullIstLeer)
{
    const std::string_view null("\0", 1);
    EXPECT_EQ(allgemein(null).art, Zellart::Leer);
    EXPECT_EQ(alsText(allgemein(std::string_view("a\0b", 3))), "ab");
}

TEST(Zellwert, textformen)
{
    const std::vector<std::pair<std::string_view, std::string_view>> fälle{
        {"100000", "100000"}, {"1.234,50", "1234.5"},   {"1E20", "100000000000000000000"},
        {"1E30", "1e+30"},    {"0,1", "0.1"},           {"-007", "-7"},
        {"1E-3", "0.001"},    {"2.8.07", "02.08.2007"},
    };
    for (const auto& [eingabe, text] : fälle) {
        EXPECT_EQ(alsText(allgemein(eingabe)), text);
    }
    EXPECT_EQ(alsAnzeigetext(allgemein("1,50")), "1,5");
    EXPECT_EQ(alsAnzeigetext(allgemein("2.8.07")), "02.08.2007");
    EXPECT_EQ(alsAnzeigetext(allgemein("a.b")), "a.b");
}

} // namespace

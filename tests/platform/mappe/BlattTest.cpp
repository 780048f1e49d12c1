#include "platform/mappe/Blatt.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string text(const Blatt& blatt, int zeile, int spalte)
{
    return alsText(blatt.zelle(zeile, spalte));
}

/// The row as a reader sees it, cells joined by "|", up to the last one that holds something.
std::string zeile(const Blatt& blatt, int nummer)
{
    std::string alles;
    int letzte = 0;
    blatt.fürJedeZelle(nummer, [&](int spalte, const Zellwert& wert) {
        EXPECT_GT(spalte, letzte);
        EXPECT_EQ(alsText(wert), text(blatt, nummer, spalte));
        alles.append(static_cast<std::size_t>(spalte - (letzte == 0 ? 1 : letzte)), '|').append(alsText(wert));
        letzte = spalte;
    });
    return alles;
}

TEST(Blatt, einLeeresHatKeineAusdehnung)
{
    const Blatt blatt("Tabelle1");
    EXPECT_EQ(blatt.name(), "Tabelle1");
    EXPECT_EQ(blatt.zeilenanzahl(), 0);
    EXPECT_EQ(blatt.spaltenanzahl(), 0);
    EXPECT_EQ(blatt.zelle(1, 1).art, Zellart::Leer);
    EXPECT_EQ(blatt.zelle(0, 0).art, Zellart::Leer);
}

TEST(Blatt, zellenWerdenGesetztErsetztUndGeleert)
{
    Blatt blatt("B");
    blatt.setze(2, 3, "a");
    blatt.setze(2, 1, "5");
    EXPECT_EQ(zeile(blatt, 2), "5||a");
    EXPECT_EQ(blatt.zelle(2, 1).art, Zellart::Zahl);
    blatt.setze(2, 3, "b");
    EXPECT_EQ(text(blatt, 2, 3), "b");
    blatt.setze(2, 3, "");
    EXPECT_EQ(blatt.zelle(2, 3).art, Zellart::Leer);
    EXPECT_EQ(blatt.zeilenanzahl(), 2);
    EXPECT_EQ(blatt.spaltenanzahl(), 1);
    blatt.setze(2, 1, "");
    EXPECT_EQ(blatt.zeilenanzahl(), 0);
}

TEST(Blatt, gesetzterTextIstEineKopie)
{
    Blatt blatt("B");
    std::string quelle = "ein Text, der l\xE4nger ist als jede Abk\xFCrzung";
    const std::string vorher = quelle;
    blatt.setze(1, 1, quelle);
    quelle.assign(quelle.size(), 'x');
    EXPECT_EQ(text(blatt, 1, 1), vorher);
}

TEST(Blatt, einVerweisKopiertNicht)
{
    Blatt blatt("B");
    const std::string quelle = "Text";
    blatt.verweise(1, 1, quelle);
    EXPECT_EQ(blatt.zelle(1, 1).text.data(), quelle.data());
}

TEST(Blatt, dieFelderEinerZeileWerdenZellen)
{
    Blatt blatt("B");
    blatt.verweiseFelder(4, 1,
                         "\xB7"
                         "1\xB7"
                         "Adler\xB7");
    blatt.verweiseFelder(5, 1, "");
    blatt.verweiseFelder(6, 2,
                         "B\"\xB7"
                         "x\"y");
    EXPECT_EQ(zeile(blatt, 4), "|1|Adler");
    EXPECT_EQ(zeile(blatt, 5), "");
    EXPECT_EQ(zeile(blatt, 6), "|B\"|x\"y");
    EXPECT_EQ(blatt.zeilenanzahl(), 6);
    EXPECT_EQ(blatt.spaltenanzahl(), 3);
    EXPECT_EQ(blatt.zelle(4, 2).art, Zellart::Zahl);
    EXPECT_EQ(blatt.zelle(4, 5).art, Zellart::Leer);
}

TEST(Blatt, einFeldplanSagtTypUndAuslassungen)
{
    Blatt blatt("B");
    const auto& text = blatt.merke({';', Zelltyp::Text, {1, 3, 4}});
    const auto& minus = blatt.merke({';', Zelltyp::AllgemeinMinusHinten, {}});
    blatt.verweiseFelder(1, 2, "a;5;c;d;e", text);
    EXPECT_EQ(zeile(blatt, 1), "|5|e");
    EXPECT_EQ(blatt.zelle(1, 2).art, Zellart::Text);
    EXPECT_EQ(text.zelleVon(2), 1);
    EXPECT_EQ(text.zelleVon(5), 2);
    blatt.verweiseFelder(2, 1, "5-;;1.2.07", minus);
    EXPECT_EQ(zeile(blatt, 2), "-5||01.02.2007");
}

TEST(Blatt, felderWerdenNichtKopiert)
{
    Blatt blatt("B");
    const std::string quelle = "erstes;zweites";
    const auto& plan = blatt.merke({.trennzeichen = ';', .ohneZelle = {}});
    blatt.verweiseFelder(1, 1, quelle, plan);
    EXPECT_EQ(blatt.zelle(1, 1).text.data(), quelle.data());
}

TEST(Blatt, kommentareStehenAnIhrerZelle)
{
    Blatt blatt("B");
    blatt.kommentiere(1, 3, "hier");
    blatt.kommentiere(1, 2, "da");
    ASSERT_NE(blatt.kommentar(1, 3), nullptr);
    EXPECT_EQ(*blatt.kommentar(1, 3), "hier");
    EXPECT_EQ(blatt.kommentar(1, 1), nullptr);
    std::vector<std::string> alle;
    blatt.fürJedenKommentar(
        1, [&](int s, std::string_view t) { alle.push_back(std::to_string(s) + ":" + std::string(t)); });
    EXPECT_EQ(alle, (std::vector<std::string>{"2:da", "3:hier"}));
    blatt.fürJedenKommentar(2, [&](int, std::string_view t) { alle.emplace_back(t); });
    EXPECT_EQ(alle.size(), 2U);
    EXPECT_EQ(blatt.letzteKommentarzeile(), 1);
}

TEST(Blatt, fettUndBreitenSindVermerke)
{
    Blatt blatt("B");
    EXPECT_FALSE(blatt.istFett(3));
    EXPECT_FALSE(blatt.sindBreitenAngepasst());
    blatt.setzeFett(3);
    blatt.passeSpaltenbreitenAn();
    EXPECT_TRUE(blatt.istFett(3));
    EXPECT_FALSE(blatt.istFett(2));
    EXPECT_TRUE(blatt.sindBreitenAngepasst());
}

/// Pieces of any length side by side, with fields left out; the cells have to be those that one would count by hand.
TEST(Blatt, beliebigeStückeWieZelleFürZelle)
{
    for (unsigned saat = 1; saat <= 200; ++saat) {
        std::mt19937 zufall(saat);
        const auto bis = [&](int höchstes) { return static_cast<int>(zufall() % static_cast<unsigned>(höchstes + 1)); };
        Blatt blatt("B");
        std::map<int, std::string> soll;
        std::deque<std::string> texte; // which the sheet looks into
        for (int spalte = 1 + bis(2); spalte < 40; spalte += 1 + bis(2)) {
            Feldplan plan{.trennzeichen = ';', .ohneZelle = {}};
            std::string text;
            const int felder = 1 + bis(5);
            for (int feld = 1; feld <= felder; ++feld) {
                const auto inhalt = bis(3) == 0 ? "" : "t" + std::to_string(spalte) + std::to_string(feld);
                text += (feld == 1 ? "" : ";") + inhalt;
                if (bis(3) == 0) {
                    plan.ohneZelle.push_back(feld);
                } else {
                    soll[spalte++] = inhalt;
                }
            }
            const int erste = spalte - (felder - static_cast<int>(plan.ohneZelle.size()));
            blatt.verweiseFelder(3, erste, texte.emplace_back(std::move(text)), blatt.merke(std::move(plan)));
        }
        for (int spalte = 1; spalte <= 60; ++spalte) {
            ASSERT_EQ(text(blatt, 3, spalte), soll[spalte]) << saat << ": " << spalte;
        }
        zeile(blatt, 3);
    }
}

} // namespace

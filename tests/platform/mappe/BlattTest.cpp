#include "platform/mappe/Blatt.h"

#include <gtest/gtest.h>

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

TEST(Blatt, importiertZeileFürZeile)
{
    Blatt blatt("B");
    blatt.importiereText(4, 1,
                         "\xB7"
                         "1\xB7"
                         "Adler\r\n\r\n\xB7"
                         "2\xB7"
                         "B\"\xB7"
                         "x\"y",
                         {});
    EXPECT_EQ(zeile(blatt, 4), "|1|Adler");
    EXPECT_EQ(zeile(blatt, 5), "");
    EXPECT_EQ(zeile(blatt, 6), "|2|B\"|x\"y");
    EXPECT_EQ(blatt.zeilenanzahl(), 6);
    EXPECT_EQ(blatt.spaltenanzahl(), 4);
    EXPECT_EQ(blatt.zelle(4, 2).art, Zellart::Zahl);
}

TEST(Blatt, spaltentypenGeltenFürDieSpalteDesTextes)
{
    Blatt blatt("B");
    blatt.importiereText(1, 1, "5;5;5;5", {';', {Zelltyp::Allgemein, Zelltyp::Text}});
    EXPECT_EQ(blatt.zelle(1, 1).art, Zellart::Zahl);
    EXPECT_EQ(blatt.zelle(1, 2).art, Zellart::Text);
    EXPECT_EQ(blatt.zelle(1, 3).art, Zellart::Zahl);
    EXPECT_EQ(blatt.zelle(1, 5).art, Zellart::Leer);
    blatt.löscheSpalte(1);
    EXPECT_EQ(blatt.zelle(1, 1).art, Zellart::Text);
}

TEST(Blatt, einzelneZellenStehenVorDemImport)
{
    Blatt blatt("B");
    blatt.importiereText(1, 1, "a;b;c", {';', {}});
    blatt.setze(1, 2, "X");
    blatt.setze(1, 5, "Y");
    EXPECT_EQ(zeile(blatt, 1), "a|X|c||Y");
    blatt.setze(1, 2, "");
    EXPECT_EQ(zeile(blatt, 1), "a||c||Y");
}

TEST(Blatt, einImportErsetztWasDaSteht)
{
    Blatt blatt("B");
    blatt.setze(1, 1, "alt");
    blatt.setze(1, 4, "bleibt");
    blatt.importiereText(1, 1, "a;;c", {';', {}});
    EXPECT_EQ(zeile(blatt, 1), "a||c|bleibt");
    blatt.importiereText(1, 2, "x;y", {';', {}});
    EXPECT_EQ(zeile(blatt, 1), "a|x|y|bleibt");
}

TEST(Blatt, gelöschteSpaltenSchiebenNachLinks)
{
    Blatt blatt("B");
    blatt.setze(1, 1, "A");
    blatt.setze(1, 4, "D");
    blatt.importiereText(2, 1, "a;b;c;d", {';', {}});
    blatt.löscheSpalte(3);
    EXPECT_EQ(zeile(blatt, 1), "A||D");
    EXPECT_EQ(zeile(blatt, 2), "a|b|d");
    blatt.löscheSpalte(1);
    EXPECT_EQ(zeile(blatt, 1), "|D");
    EXPECT_EQ(zeile(blatt, 2), "b|d");
    blatt.setze(2, 2, "neu");
    EXPECT_EQ(zeile(blatt, 2), "b|neu");
    blatt.löscheSpalte(99);
    EXPECT_EQ(zeile(blatt, 2), "b|neu");
}

TEST(Blatt, einBereichSchiebtNurSeineZeilen)
{
    Blatt blatt("B");
    blatt.importiereText(1, 1, "a;b;c;d\na;b;c;d\na;b;c;d\na;b;c;d", {';', {}});
    blatt.löscheBereich(2, 2, 3, 3);
    EXPECT_EQ(zeile(blatt, 1), "a|b|c|d");
    EXPECT_EQ(zeile(blatt, 2), "a|d");
    EXPECT_EQ(zeile(blatt, 3), "a|d");
    EXPECT_EQ(zeile(blatt, 4), "a|b|c|d");
    blatt.löscheSpalte(1);
    EXPECT_EQ(zeile(blatt, 1), "b|c|d");
    EXPECT_EQ(zeile(blatt, 2), "d");
}

TEST(Blatt, dieEckenEinesBereichsDürfenVertauschtSein)
{
    Blatt blatt("B");
    blatt.importiereText(1, 1, "a;b;c;d\na;b;c;d\na;b;c;d", {';', {}});
    blatt.löscheBereich(2, 3, 1, 2);
    EXPECT_EQ(zeile(blatt, 1), "a|d");
    EXPECT_EQ(zeile(blatt, 2), "a|d");
    EXPECT_EQ(zeile(blatt, 3), "a|b|c|d");
}

TEST(Blatt, textInSpaltenTeiltDieZellenDerSpalte)
{
    Blatt blatt("B");
    blatt.setze(1, 2, "kopf;bleibt");
    blatt.setze(2, 1, "v");
    blatt.setze(2, 2, "1;5-;;1.2.07;");
    blatt.setze(2, 3, "weg");
    blatt.setze(2, 9, "hinten");
    blatt.setze(4, 2, "x;y");
    blatt.setze(5, 2, "x;y");
    blatt.textInSpalten(2, 4, 2, ';');
    EXPECT_EQ(zeile(blatt, 1), "|kopf;bleibt");
    EXPECT_EQ(zeile(blatt, 2), "v|1|-5||01.02.2007||||hinten");
    EXPECT_EQ(zeile(blatt, 3), "");
    EXPECT_EQ(zeile(blatt, 4), "|x|y");
    EXPECT_EQ(zeile(blatt, 5), "|x;y");
}

TEST(Blatt, textInSpaltenTeiltAuchEineImportierteZelle)
{
    Blatt blatt("B");
    blatt.importiereText(1, 1, "a;1,2;c;d", {';', {}});
    blatt.textInSpalten(1, 1, 2, ',');
    EXPECT_EQ(zeile(blatt, 1), "a|1|2|d");
}

TEST(Blatt, textInSpaltenNachEinerGelöschtenSpalte)
{
    Blatt blatt("B");
    blatt.setze(1, 1, "a;b;c");
    blatt.setze(1, 3, "weg");
    blatt.löscheSpalte(3);
    blatt.textInSpalten(1, 1, 1, ';');
    EXPECT_EQ(zeile(blatt, 1), "a|b|c");
}

TEST(Blatt, kommentareWandernMitIhrerZelle)
{
    Blatt blatt("B");
    blatt.kommentiere(1, 3, "hier");
    blatt.kommentiere(1, 2, "geht");
    ASSERT_NE(blatt.kommentar(1, 3), nullptr);
    EXPECT_EQ(*blatt.kommentar(1, 3), "hier");
    EXPECT_EQ(blatt.kommentar(1, 1), nullptr);
    blatt.löscheSpalte(2);
    ASSERT_NE(blatt.kommentar(1, 2), nullptr);
    EXPECT_EQ(*blatt.kommentar(1, 2), "hier");
    std::vector<std::string> alle;
    blatt.fürJedenKommentar(
        1, [&](int s, std::string_view t) { alle.push_back(std::to_string(s) + ":" + std::string(t)); });
    EXPECT_EQ(alle, std::vector<std::string>{"2:hier"});
    blatt.fürJedenKommentar(2, [&](int, std::string_view t) { alle.emplace_back(t); });
    EXPECT_EQ(alle.size(), 1U);
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

/// A sheet as one would build it with a text for every cell, to compare with.
class Vergleichsblatt {
public:
    void setze(int zeile, int spalte, const std::string& text) { platz(zeile, spalte) = text; }
    void importiere(int zeile, int spalte, const std::vector<std::string>& felder)
    {
        for (const std::string& feld : felder) {
            setze(zeile, spalte++, feld);
        }
    }
    void löscheSpalte(int spalte)
    {
        for (auto& zeile : m_zeilen) {
            zeile.erase(zeile.begin() + (spalte - 1));
            zeile.emplace_back();
        }
    }
    void löscheBereich(int von, int vonSpalte, int bis, int bisSpalte)
    {
        for (int z = von; z <= bis; ++z) {
            auto& zeile = m_zeilen[static_cast<std::size_t>(z)];
            zeile.erase(zeile.begin() + (vonSpalte - 1), zeile.begin() + bisSpalte);
            zeile.resize(breite);
        }
    }
    void vergleicheMit(const Blatt& blatt)
    {
        for (int z = 1; z < static_cast<int>(höhe); ++z) {
            for (int s = 1; s <= static_cast<int>(breite); ++s) {
                ASSERT_EQ(text(blatt, z, s), platz(z, s)) << z << ", " << s;
            }
        }
    }

    static constexpr std::size_t höhe = 12;
    static constexpr std::size_t breite = 60;

private:
    std::string& platz(int zeile, int spalte)
    {
        return m_zeilen.at(static_cast<std::size_t>(zeile)).at(static_cast<std::size_t>(spalte - 1));
    }

    std::vector<std::vector<std::string>> m_zeilen{höhe, std::vector<std::string>(breite)};
};

/// Random operations on both sheets; whatever their order, the cells have to agree.
TEST(Blatt, beliebigeFolgenWieZelleFürZelle)
{
    for (unsigned saat = 1; saat <= 60; ++saat) {
        std::mt19937 zufall(saat);
        const auto bis = [&](int höchstes) { return 1 + static_cast<int>(zufall() % static_cast<unsigned>(höchstes)); };
        Blatt blatt("B");
        Vergleichsblatt soll;
        std::vector<std::string> texte;
        texte.reserve(30);
        for (int schritt = 0; schritt < 30; ++schritt) {
            const int z = bis(10);
            const int s = bis(12);
            switch (bis(5)) {
            case 1: {
                const std::string neu = zufall() % 3 == 0 ? "" : "t" + std::to_string(schritt);
                blatt.setze(z, s, neu);
                soll.setze(z, s, neu);
                break;
            }
            case 2: {
                const std::string a = "a" + std::to_string(schritt);
                const std::string b = zufall() % 2 == 0 ? "" : "b" + std::to_string(schritt);
                texte.push_back(a + ";" + b + ";c");
                blatt.importiereText(z, s, texte.back(), {';', {}});
                soll.importiere(z, s, {a, b, "c"});
                break;
            }
            case 3:
                blatt.löscheSpalte(s);
                soll.löscheSpalte(s);
                break;
            case 4: {
                const int z2 = bis(10);
                const int s2 = bis(12);
                blatt.löscheBereich(z, s, z2, s2);
                soll.löscheBereich(std::min(z, z2), std::min(s, s2), std::max(z, z2), std::max(s, s2));
                break;
            }
            default: {
                blatt.setze(z, s, "x;y");
                blatt.textInSpalten(z, z, s, ';');
                soll.importiere(z, s, {"x", "y"});
                break;
            }
            }
            soll.vergleicheMit(blatt);
            if (HasFatalFailure()) {
                FAIL() << "seed " << saat << ", step " << schritt;
            }
        }
    }
}

} // namespace

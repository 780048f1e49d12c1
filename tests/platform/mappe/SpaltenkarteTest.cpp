#include "platform/mappe/Spaltenkarte.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

TEST(Spaltenkarte, amAnfangStehtAllesAnSeinemOrt)
{
    const Spaltenkarte karte;
    EXPECT_EQ(karte.ort(1), 1);
    EXPECT_EQ(karte.ort(255), 255);
    EXPECT_TRUE(karte.istZusammenhängend(1, 255));
}

TEST(Spaltenkarte, hinterEinerGelöschtenRücktAllesNach)
{
    Spaltenkarte karte;
    karte.lösche(3);
    EXPECT_EQ(karte.ort(2), 2);
    EXPECT_EQ(karte.ort(3), 4);
    EXPECT_EQ(karte.ort(100), 101);
    EXPECT_FALSE(karte.istZusammenhängend(2, 2));
    EXPECT_TRUE(karte.istZusammenhängend(3, 50));
}

TEST(Spaltenkarte, verhältSichWieEineListe)
{
    std::mt19937 zufall(7);
    std::vector<int> liste;
    for (int i = 1; i <= 1000; ++i) {
        liste.push_back(i);
    }
    Spaltenkarte karte;
    for (int runde = 0; runde < 100; ++runde) {
        const int spalte = 1 + static_cast<int>(zufall() % 300);
        const int anzahl = 1 + static_cast<int>(zufall() % 3);
        karte.lösche(spalte, anzahl);
        liste.erase(liste.begin() + (spalte - 1), liste.begin() + (spalte - 1 + anzahl));
        for (int i = 1; i <= 500; ++i) {
            ASSERT_EQ(karte.ort(i), liste[static_cast<std::size_t>(i - 1)]);
        }
    }
}

} // namespace

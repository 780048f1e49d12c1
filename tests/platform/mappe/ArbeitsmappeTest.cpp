#include "platform/mappe/Arbeitsmappe.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using Namen = std::vector<std::string>;

TEST(Arbeitsmappe, eineNeueHatEinLeeresBlatt)
{
    const Arbeitsmappe mappe;
    EXPECT_EQ(mappe.blattanzahl(), 1U);
    EXPECT_EQ(mappe.blatt(1).spaltenanzahl(), 0);
    EXPECT_THROW(mappe.blatt(2), std::out_of_range);
}

TEST(Arbeitsmappe, blätterKommenDavorUndGehen)
{
    Arbeitsmappe mappe;
    mappe.fügeBlattEinVor(1, "b");
    mappe.fügeBlattEinVor(1, "a");
    mappe.fügeBlattEinVor(3, "c");
    EXPECT_EQ(mappe.blattnamen(), (Namen{"a", "b", "c", "Tabelle1"}));
    mappe.löscheBlatt(4);
    mappe.löscheBlatt(2);
    EXPECT_EQ(mappe.blattnamen(), (Namen{"a", "c"}));
    mappe.blatt(2).setzeName("neu");
    EXPECT_EQ(mappe.finde("neu"), &mappe.blatt(2));
    EXPECT_EQ(mappe.finde("c"), nullptr);
}

TEST(Arbeitsmappe, einBlattBehältSeinenOrt)
{
    Arbeitsmappe mappe;
    Blatt& blatt = mappe.fügeBlattEinVor(1, "a");
    mappe.fügeBlattEinVor(1, "b");
    blatt.setze(1, 1, "x");
    const Arbeitsmappe andere = std::move(mappe);
    EXPECT_EQ(andere.finde("a"), &blatt);
    EXPECT_EQ(alsText(andere.finde("a")->zelle(1, 1)), "x");
}

TEST(Arbeitsmappe, hältWasIhreZellenBrauchen)
{
    std::weak_ptr<std::string> beobachtet;
    {
        Arbeitsmappe mappe;
        const auto inhalt = std::make_shared<std::string>("a;b");
        beobachtet = inhalt;
        mappe.blatt(1).verweiseFelder(1, 1, *inhalt);
        mappe.halte(inhalt);
    }
    EXPECT_TRUE(beobachtet.expired());
}

} // namespace

#include "platform/dateien/Zeilensuche.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

std::string ersteStelle(std::string_view zeile)
{
    return std::string(zeile.substr(0, 1));
}

TEST(Zeilensuche, findetDieErsteZeileMitDemSchlüssel)
{
    Zeilensuche suche("a1\r\nb1\r\na2\r\nc1", ersteStelle);
    EXPECT_EQ(suche.finde("c"), "c1");
    EXPECT_EQ(suche.finde("a"), "a1");
    EXPECT_EQ(suche.finde("b"), "b1");
    EXPECT_EQ(suche.finde("a"), "a1");
}

TEST(Zeilensuche, ohneTrefferLeer)
{
    Zeilensuche suche("a1\nb1\n", ersteStelle);
    EXPECT_EQ(suche.finde("x"), "");
    EXPECT_EQ(suche.finde("b"), "b1");
    EXPECT_EQ(Zeilensuche("", ersteStelle).finde("a"), "");
}

TEST(Zeilensuche, liestNurSoWeitWieNötig)
{
    int gelesen = 0;
    Zeilensuche suche("a\nb\nc\n", [&](std::string_view zeile) {
        ++gelesen;
        if (zeile == "c") {
            throw std::runtime_error("zu weit");
        }
        return std::string(zeile);
    });
    EXPECT_EQ(suche.finde("b"), "b");
    EXPECT_EQ(suche.finde("a"), "a");
    EXPECT_EQ(gelesen, 2);
    EXPECT_THROW(suche.finde("x"), std::runtime_error);
}

} // namespace

#include "platform/dateien/Zeilen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> alle(std::string_view inhalt)
{
    std::vector<std::string> ergebnis;
    Zeilen zeilen(inhalt);
    while (const auto zeile = zeilen.nächste()) {
        ergebnis.emplace_back(*zeile);
    }
    return ergebnis;
}

using Zeilenliste = std::vector<std::string>;

} // namespace

TEST(Zeilen, AlleZeilenenden)
{
    EXPECT_EQ(alle("a\r\nb\nc\rd"), (Zeilenliste{"a", "b", "c", "d"}));
    EXPECT_EQ(alle("a\r\n"), (Zeilenliste{"a"}));
    EXPECT_EQ(alle(""), Zeilenliste{});
}

TEST(Zeilen, LeereZeilenSindZeilen)
{
    EXPECT_EQ(alle("\r\n\r\na\n\n"), (Zeilenliste{"", "", "a", ""}));
    EXPECT_EQ(alle("\r\r"), (Zeilenliste{"", ""}));
    EXPECT_EQ(alle("a\n\rb"), (Zeilenliste{"a", "", "b"}));
}

TEST(Zeilen, NummerUndPosition)
{
    Zeilen zeilen("ab\r\ncd");
    zeilen.nächste();
    EXPECT_EQ(zeilen.nummer(), 1U);
    EXPECT_EQ(zeilen.position(), 4U);
    zeilen.nächste();
    EXPECT_EQ(zeilen.nummer(), 2U);
    EXPECT_EQ(zähleZeilen("a\nb\r\n\nd"), 4U);
}

#include "clients/frmMemo.h"

#include <gtest/gtest.h>

namespace {

TEST(Memoform, AnzeigeUndZurück)
{
    EXPECT_EQ(alsAnzeigeform("eins\xB6zwei\xB6"), "eins\r\nzwei\r\n");
    EXPECT_EQ(alsSpeicherform("eins\r\nzwei\r\n"), "eins\xB6zwei\xB6");
    EXPECT_EQ(alsAnzeigeform(""), "");
    EXPECT_EQ(alsSpeicherform(""), "");
}

TEST(Memoform, WagenrücklaufZähltZeilenvorschubFälltWeg)
{
    EXPECT_EQ(alsSpeicherform("a\rb"), "a\xB6"
                                       "b");
    EXPECT_EQ(alsSpeicherform("a\nb"), "ab");
}

TEST(Memoform, JederAndereWertÜberstehtHinUndHer)
{
    std::string alle;
    for (int wert = 0; wert < 256; ++wert) {
        if (wert != '\r' && wert != '\n') {
            alle.push_back(static_cast<char>(wert));
        }
    }
    EXPECT_EQ(alsSpeicherform(alsAnzeigeform(alle)), alle);
}

} // namespace

#include "app/Befehlszeile.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using Argumente = std::vector<std::filesystem::path>;

TEST(Befehlszeile, OhneArgumenteWirdGearbeitet)
{
    const auto aufruf = leseAufruf({});
    EXPECT_EQ(aufruf.art, Aufrufart::Arbeiten);
    EXPECT_FALSE(aufruf.ordner);
}

TEST(Befehlszeile, EinOrdnerKannGenanntSein)
{
    const auto aufruf = leseAufruf({"/srv/beratung"});
    EXPECT_EQ(aufruf.art, Aufrufart::Arbeiten);
    EXPECT_EQ(aufruf.ordner, "/srv/beratung");
}

TEST(Befehlszeile, JederSchalterWirdErkannt)
{
    const std::vector<std::pair<const char*, Aufrufart>> schalter{{"--muster", Aufrufart::Muster},
                                                                  {"--pruefe", Aufrufart::Prüfung},
                                                                  {"--version", Aufrufart::Version},
                                                                  {"--hilfe", Aufrufart::Hilfe}};
    for (const auto& [name, art] : schalter) {
        const auto aufruf = leseAufruf({name});
        EXPECT_EQ(aufruf.art, art) << name;
        EXPECT_FALSE(aufruf.ordner) << name;
    }
}

TEST(Befehlszeile, DiePrüfungNimmtEinenOrdner)
{
    const auto aufruf = leseAufruf({"--pruefe", "Daten"});
    EXPECT_EQ(aufruf.art, Aufrufart::Prüfung);
    EXPECT_EQ(aufruf.ordner, "Daten");
}

TEST(Befehlszeile, WasUnklarIstWirdNichtAusgeführt)
{
    const std::vector<Argumente> unklare{{"--help"},
                                         {"-h"},
                                         {"--muster", "a"},
                                         {"--version", "a"},
                                         {"a", "b"},
                                         {"--pruefe", "a", "b"},
                                         {"a", "--pruefe"},
                                         {""},
                                         {"--muster", "--muster"},
                                         {"--pruefe", "--x"},
                                         {"--pruefe", ""},
                                         {"--versionen"}};
    for (const auto& argumente : unklare) {
        const auto aufruf = leseAufruf(argumente);
        EXPECT_EQ(aufruf.art, Aufrufart::Unverständlich) << argumente.front();
        EXPECT_FALSE(aufruf.ordner);
        EXPECT_NE(aufruf.fehler.find("Argument: "), std::string::npos);
    }
}

TEST(Befehlszeile, DerFehlerNenntDasArgument)
{
    EXPECT_EQ(leseAufruf({u8"--prüfe"}).fehler, "unbekanntes Argument: --prüfe");
    EXPECT_EQ(leseAufruf({"a", u8"Büro"}).fehler, "überzähliges Argument: Büro");
}

TEST(Befehlszeile, VersionUndHilfe)
{
    EXPECT_EQ(versionstext(), "Tolvek7 7.0.0\n");
    for (const auto* wort : {"Aufruf: tolvek7", "--muster", "--pruefe", "--version", "--hilfe", "ORDNER"}) {
        EXPECT_NE(hilfetext().find(wort), std::string_view::npos) << wort;
    }
}

} // namespace

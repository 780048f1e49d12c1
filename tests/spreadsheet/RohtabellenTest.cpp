#include "spreadsheet/Mappenlauf.h"

#include "satz/moHelferlein.h"

namespace {

const std::string einKlient =
    satz({"", "1", "a", "Adler", "Anna", "Weg 1", "01067", "Ort", "weiblich", "1.2.70", "geheim"});

TEST(Rohtabellen, blätterInIhrerReihenfolge)
{
    Mappenlauf lauf;
    lauf.schreibe({}, {}, {});
    EXPECT_EQ(lauf.mappe.blattnamen(), (std::vector<std::string>{"Auswertung", "KernDat", "BetrDat", "DiagDat"}));
    for (const std::string_view name : {"KernDat", "BetrDat", "DiagDat"}) {
        EXPECT_EQ(lauf.blatt(name).zeilenanzahl(), 0) << name;
        EXPECT_FALSE(lauf.blatt(name).istFett(3)) << name;
    }
}

TEST(Rohtabellen, klientenOhneMemoUndOhneLeeresFeld)
{
    Mappenlauf lauf;
    lauf.schreibe({einKlient}, {}, {});
    const Blatt& blatt = lauf.blatt("KernDat");
    EXPECT_EQ(blatt.spaltenanzahl(), 9);
    EXPECT_EQ(blatt.zeilenanzahl(), 4);
    EXPECT_EQ(lauf.text("KernDat", 1, 1), "");
    EXPECT_EQ(lauf.text("KernDat", 2, 1), "kernID");
    EXPECT_EQ(lauf.text("KernDat", 2, 2), "");
    EXPECT_EQ(lauf.text("KernDat", 2, 9), "Geburtsdatum");
    EXPECT_EQ(lauf.text("KernDat", 3, 2), "betrao");
    EXPECT_EQ(lauf.text("KernDat", 3, 9), "gebdatum");
    EXPECT_EQ(blatt.zelle(4, 1).art, Zellart::Zahl);
    EXPECT_EQ(lauf.text("KernDat", 4, 2), "a");
    EXPECT_EQ(lauf.text("KernDat", 4, 6), "1067");
    EXPECT_EQ(lauf.text("KernDat", 4, 9), "01.02.1970");
    EXPECT_TRUE(blatt.istFett(3));
    EXPECT_FALSE(blatt.istFett(4));
    EXPECT_TRUE(blatt.sindBreitenAngepasst());
}

TEST(Rohtabellen, diagnosenOhneUngenutzteSpaltenUndBitfeld)
{
    Mappenlauf lauf;
    lauf.schreibe({einKlient}, {}, {satzMit(247, {{1, "1"}, {2, "1"}, {3, "x"}, {247, "77"}})});
    const Blatt& blatt = lauf.blatt("DiagDat");
    // 246 columns less the 21 that groups 21 to 29 never fill
    EXPECT_EQ(blatt.spaltenanzahl(), 225);
    for (int spalte = 1; spalte <= 225; ++spalte) {
        EXPECT_NE(lauf.text("DiagDat", 3, spalte), "VOID") << spalte;
    }
    EXPECT_EQ(lauf.text("DiagDat", 3, 163), "icd5502");
    EXPECT_EQ(lauf.text("DiagDat", 3, 213), "icd500_HD");
    EXPECT_EQ(lauf.text("DiagDat", 3, 214), "icdpsy1");
    EXPECT_EQ(lauf.text("DiagDat", 3, 225), "icdand4");
    EXPECT_EQ(lauf.text("DiagDat", 4, 225), "");
}

TEST(Rohtabellen, jedeDiagnosespalteBehältIhrenKopf)
{
    std::string zeile;
    for (int feld = 1; feld <= 247; ++feld) {
        zeile += (feld == 1 ? "" : "\xB7") + ("f" + std::to_string(feld));
    }
    Mappenlauf lauf;
    lauf.schreibe({}, {}, {zeile});
    const auto köpfe = erstelleDiagHeader();
    int spalte = 0;
    for (int feld = 1; feld <= 246; ++feld) {
        const auto& name = köpfe.at(static_cast<std::size_t>(feld - 1)).name;
        if (name == "VOID") {
            continue;
        }
        ++spalte;
        const std::string vorsatz = feld >= 235 && feld <= 238 ? "F" : feld >= 239 && feld <= 242 ? "G" : "";
        EXPECT_EQ(lauf.text("DiagDat", 3, spalte), name);
        EXPECT_EQ(lauf.text("DiagDat", 4, spalte), vorsatz + "f" + std::to_string(feld));
    }
    EXPECT_EQ(spalte, 225);
}

TEST(Rohtabellen, weitereDiagnosenBleibenTextMitIhremBuchstaben)
{
    const auto zeile = [](std::string_view id) {
        return satzMit(
            247,
            {{1, id}, {2, "1"}, {4, "32.10"}, {235, "32.10"}, {238, "41,5"}, {239, "40"}, {243, "E11.90"}, {244, "5"}});
    };
    Mappenlauf lauf;
    lauf.schreibe({}, {}, {zeile("1"), zeile(""), zeile("3")});
    EXPECT_EQ(lauf.text("DiagDat", 4, 214), "F32.10");
    EXPECT_EQ(lauf.text("DiagDat", 4, 215), "");
    EXPECT_EQ(lauf.text("DiagDat", 4, 217), "F41,5");
    EXPECT_EQ(lauf.text("DiagDat", 4, 218), "G40");
    EXPECT_EQ(lauf.text("DiagDat", 4, 222), "E11.90");
    EXPECT_EQ(lauf.blatt("DiagDat").zelle(4, 223).art, Zellart::Text);
    // the letters end at the first row without an id
    EXPECT_EQ(lauf.text("DiagDat", 5, 214), "32.10");
    EXPECT_EQ(lauf.text("DiagDat", 6, 214), "32.10");
}

TEST(Rohtabellen, leereErsteZeileLässtDasBlattLeer)
{
    Mappenlauf lauf;
    lauf.schreibe({"", einKlient}, {"", satzMit(192, {{1, "1"}})}, {"", satzMit(247, {{1, "1"}})});
    for (const std::string_view name : {"KernDat", "BetrDat", "DiagDat"}) {
        EXPECT_EQ(lauf.blatt(name).zeilenanzahl(), 0) << name;
    }
}

TEST(Rohtabellen, zeichenNullStehtAlsLeereZelle)
{
    Mappenlauf lauf;
    lauf.schreibe({satz({"", "1", std::string_view("\0", 1), "Adler"})}, {}, {});
    EXPECT_EQ(lauf.blatt("KernDat").zelle(4, 2).art, Zellart::Leer);
    EXPECT_EQ(lauf.text("KernDat", 4, 3), "Adler");
}

} // namespace

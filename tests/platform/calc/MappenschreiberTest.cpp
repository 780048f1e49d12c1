#include "platform/calc/Mappenschreiber.h"

#include "platform/calc/Calcversuch.h"
#include "platform/text/Eingabe.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "spreadsheet/Mappenlauf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Csvzelle {
    std::string text;
    bool inAnführung = false;
};

using Csv = std::vector<std::vector<Csvzelle>>;

/// Reads the text with ";" between cells, texts in quotes.
Csv leseCsv(const std::string& inhalt)
{
    Csv zeilen(1);
    zeilen.back().emplace_back();
    bool innen = false;
    for (std::size_t i = 0; i < inhalt.size(); ++i) {
        const char zeichen = inhalt[i];
        Csvzelle& zelle = zeilen.back().back();
        if (zeichen == '"') {
            if (innen && i + 1 < inhalt.size() && inhalt[i + 1] == '"') {
                zelle.text += inhalt[++i];
            } else {
                innen = !innen;
                zelle.inAnführung = true;
            }
        } else if (!innen && zeichen == ';') {
            zeilen.back().emplace_back();
        } else if (!innen && zeichen == '\n') {
            zeilen.emplace_back(1);
        } else {
            zelle.text += zeichen;
        }
    }
    return zeilen;
}

/// What the spreadsheet program reads in the file: every sheet as text, numbers and dates as they are shown.
class Rückwandlung {
public:
    explicit Rückwandlung(const Calcversuch& versuch) : m_versuch(versuch) {}

    void wandle(const fs::path& xlsx, const std::string& art) const
    {
        ausgabeVon("soffice " + m_versuch.profil() + " --headless --convert-to '" + art + "' --outdir '" +
                   m_versuch.ordner.string() + "/aus' '" + xlsx.string() + "' 2>&1");
    }

    Csv blatt(const std::string& mappe, const std::string& name) const
    {
        const fs::path pfad = m_versuch.ordner / "aus" / (mappe + "-" + name + ".csv");
        EXPECT_TRUE(fs::exists(pfad)) << pfad;
        return leseCsv(leseDatei(pfad));
    }

    static constexpr auto alsCsv = "csv:Text - txt - csv (StarCalc):59,34,76,1,,1031,true,true,true,false,false,-1";

private:
    const Calcversuch& m_versuch;
};

void vergleicheZelle(const Zellwert& soll, const Csvzelle& ist)
{
    switch (soll.art) {
    case Zellart::Leer:
        EXPECT_EQ(ist.text, "");
        break;
    case Zellart::Text:
        EXPECT_TRUE(ist.inAnführung) << ist.text;
        EXPECT_EQ(ist.text, alsUtf8(alsText(soll)));
        break;
    case Zellart::Zahl:
        EXPECT_FALSE(ist.inAnführung) << ist.text;
        EXPECT_EQ(std::strtod(ist.text.c_str(), nullptr), soll.zahl) << ist.text;
        break;
    case Zellart::Datum:
        EXPECT_FALSE(ist.inAnführung) << ist.text;
        EXPECT_EQ(ist.text, alsDatumstext(soll.datum));
        break;
    }
}

void vergleicheBlatt(const Blatt& soll, const Csv& ist)
{
    for (int zeile = 1; zeile <= soll.zeilenanzahl(); ++zeile) {
        ASSERT_GE(ist.size(), static_cast<std::size_t>(zeile)) << soll.name();
        const auto& zellen = ist[static_cast<std::size_t>(zeile - 1)];
        for (int spalte = 1; spalte <= soll.spaltenanzahl(); ++spalte) {
            SCOPED_TRACE(alsUtf8(soll.name()) + " " + std::to_string(zeile) + "," + std::to_string(spalte));
            const auto stelle = static_cast<std::size_t>(spalte - 1);
            vergleicheZelle(soll.zelle(zeile, spalte), stelle < zellen.size() ? zellen[stelle] : Csvzelle{});
        }
    }
}

const std::string mitAllem = satzMit(247, {{1, "1"},
                                           {2, "1"},
                                           {3, "Injektion"},
                                           {4, "5"},
                                           {5, "1,5"},
                                           {10, "1"},
                                           {235, "32.10"},
                                           {239, "40.1"},
                                           {243, "E11.9"},
                                           {247, "2"}});

void schreibeMuster(Mappenlauf& lauf)
{
    lauf.schreibe(
        {satz({"", "1", std::string_view("\0", 1), "M\xFCller\x80", "=1+1", "Weg 1", "01067", "K\xF6ln", "weiblich",
               "15.03.1970", "geheim"}),
         satz({"", "2", "o", "<Ad&ler>", "\"A\"", "@x", "1.234,5", "", "", "unbekannt"})},
        {satzMit(192, {{1, "1"}, {2, "1"}, {3, "01.02.2006"}, {4, "offen"}, {17, "ja"}, {142, "0"}, {191, "5-"}})},
        {mitAllem, satzMit(247, {{1, "2"}, {2, "1"}})});
}

TEST(Mappenschreiber, jedeZelleKommtImTabellenprogrammAn)
{
    const Calcversuch versuch;
    const Rückwandlung rückwandlung(versuch);
    Mappenlauf lauf;
    schreibeMuster(lauf);
    schreibeXlsx(lauf.mappe, versuch.ordner / "muster.xlsx");
    rückwandlung.wandle(versuch.ordner / "muster.xlsx", Rückwandlung::alsCsv);
    for (const std::string& name : lauf.mappe.blattnamen()) {
        vergleicheBlatt(lauf.blatt(name), rückwandlung.blatt("muster", name));
    }
}

TEST(Mappenschreiber, zahlenTexteUndDatumswerteBehaltenIhreArt)
{
    const Calcversuch versuch;
    const Rückwandlung rückwandlung(versuch);
    Arbeitsmappe mappe;
    Blatt& blatt = mappe.blatt(1);
    int zeile = 0;
    for (const std::string_view text : {"1",
                                        "-1,5",
                                        "1.234,5",
                                        "123456789012345",
                                        "0,000123456789012345",
                                        "1,5E3",
                                        "01.01.1900",
                                        "29.02.2008",
                                        "31.12.9999",
                                        "=SUMME(A1)",
                                        "+",
                                        "-x",
                                        "@A1",
                                        "'5",
                                        "5%",
                                        "WAHR",
                                        "1/2",
                                        "12:30",
                                        "32.10",
                                        " Rand ",
                                        "_x0041_",
                                        "http://www.example.org/",
                                        "\"",
                                        "\x80\xE4\xDF\x96",
                                        "mailto:x",
                                        "1234567890123456"}) {
        blatt.setze(++zeile, 1, text);
        blatt.setze(zeile, 2, text, Zelltyp::Text);
    }
    blatt.setze(100, 3, "fern");
    blatt.passeSpaltenbreitenAn();
    schreibeXlsx(mappe, versuch.ordner / "arten.xlsx");
    rückwandlung.wandle(versuch.ordner / "arten.xlsx", Rückwandlung::alsCsv);
    // a workbook of one sheet is written with its name too
    vergleicheBlatt(blatt, rückwandlung.blatt("arten", "Tabelle1"));
}

TEST(Mappenschreiber, eineDeutscheUmgebungÄndertKeineZahl)
{
    const Calcversuch versuch;
    const Rückwandlung rückwandlung(versuch);
    Arbeitsmappe mappe;
    mappe.blatt(1).setze(1, 1, "1.234,5");
    mappe.blatt(1).setze(1, 2, "-0,25");
    mappe.blatt(1).passeSpaltenbreitenAn();
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.utf8"), nullptr);
    schreibeXlsx(mappe, versuch.ordner / "komma.xlsx");
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    std::setlocale(LC_ALL, "C");
    rückwandlung.wandle(versuch.ordner / "komma.xlsx", Rückwandlung::alsCsv);
    vergleicheBlatt(mappe.blatt(1), rückwandlung.blatt("komma", "Tabelle1"));
}

TEST(Mappenschreiber, kommentareSindVerstecktUndZeilenFett)
{
    const Calcversuch versuch;
    Mappenlauf lauf;
    schreibeMuster(lauf);
    schreibeXlsx(lauf.mappe, versuch.ordner / "muster.xlsx");
    Rückwandlung(versuch).wandle(versuch.ordner / "muster.xlsx", "fods");
    const std::string text = leseDatei(versuch.ordner / "aus" / "muster.fods");
    EXPECT_NE(text.find("# KonsumTage 30 Tage am BetrEnd</text:"), std::string::npos);
    EXPECT_EQ(text.find("office:display=\"true\""), std::string::npos);
    EXPECT_NE(text.find("fo:font-weight=\"bold\""), std::string::npos);
}

TEST(Mappenschreiber, zwischendurchKommtDasFensterDran)
{
    const Calcversuch versuch;
    Arbeitsmappe mappe;
    for (int zeile = 1; zeile <= 1000; ++zeile) {
        mappe.blatt(1).setze(zeile, 1, "x");
    }
    int pausen = 0;
    schreibeXlsx(mappe, versuch.ordner / "a.xlsx", [&](double) { ++pausen; });
    EXPECT_GE(pausen, 3);
}

/// The share that is told goes on during the packing as well, never back, and is not far from the time.
TEST(Mappenschreiber, derAnteilStimmtVonAnfangBisEnde)
{
    const Calcversuch versuch;
    Arbeitsmappe mappe;
    constexpr int zeilen = 4000;
    for (int zeile = 1; zeile <= zeilen; ++zeile) {
        for (int spalte = 1; spalte <= 100; ++spalte) {
            mappe.blatt(1).setze(zeile, spalte, spalte % 3 == 0 ? "keine Angaben" : std::to_string(zeile % 40));
        }
    }
    std::vector<double> anteile;
    schreibeXlsx(mappe, versuch.ordner / "a.xlsx", [&](double anteil) { anteile.push_back(anteil); });
    EXPECT_TRUE(std::ranges::is_sorted(anteile));
    EXPECT_LE(anteile.back(), 1.0);
    EXPECT_GT(anteile.back(), 0.7);
    EXPECT_GT(std::ranges::count_if(anteile, [](double anteil) { return anteil > 0.55; }), 2);
}

TEST(Mappenschreiber, kommentarInEinerLeerenZeile)
{
    const Calcversuch versuch;
    Arbeitsmappe mappe;
    mappe.blatt(1).kommentiere(7, 2, "allein");
    schreibeXlsx(mappe, versuch.ordner / "a.xlsx");
    Rückwandlung(versuch).wandle(versuch.ordner / "a.xlsx", "fods");
    EXPECT_NE(leseDatei(versuch.ordner / "aus" / "a.fods").find("allein"), std::string::npos);
}

TEST(Mappenschreiber, einUnbeschreibbarerOrtIstEinLaufzeitfehler)
{
    const Calcversuch versuch;
    EXPECT_THROW(schreibeXlsx(Arbeitsmappe(), versuch.ordner / "fehlt" / "a.xlsx"), Laufzeitfehler);
}

TEST(Mappenschreiber, einZuLangerTextIstEinLaufzeitfehler)
{
    const Calcversuch versuch;
    Arbeitsmappe mappe;
    mappe.blatt(1).setze(1, 1, std::string(40000, 'x'));
    EXPECT_THROW(schreibeXlsx(mappe, versuch.ordner / "a.xlsx"), Laufzeitfehler);
}

} // namespace

#include "store/Vorgang.h"

#include "hilfen/Testumgebung.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Satzaufbau.h"
#include "satz/moHelferlein.h"
#include "store/Sicherungen.h"

#include <random>

namespace {

using Sätze = std::vector<std::string>;

class TabellenTest : public testing::Test {
protected:
    TabellenTest() { lauf.legeTabellenAn(); }

    void klienten(const Sätze& zeilen) const { Testlauf::schreibeZeilen(lauf.pfade().kernDat, zeilen); }
    void betreuungen(const Sätze& zeilen) const { Testlauf::schreibeZeilen(lauf.pfade().betrDat, zeilen); }
    std::string inhalt(const std::filesystem::path& pfad) const { return Testlauf::lies(pfad); }
    std::string kern() const { return inhalt(lauf.pfade().kernDat); }
    std::string betr() const { return inhalt(lauf.pfade().betrDat); }

    /// The text of the failure that the operation ends with.
    template <class F> static std::string fehlertext(F tue)
    {
        try {
            tue();
        } catch (const Laufzeitfehler& fehler) {
            return fehler.text();
        }
        return "no failure";
    }

    /// The one box so far.
    void erwarteMeldung(std::string_view text, Symbol symbol) const
    {
        ASSERT_EQ(lauf.umgebung.meldungen.size(), 1U);
        EXPECT_EQ(lauf.umgebung.meldungen[0].text, text);
        EXPECT_EQ(lauf.umgebung.meldungen[0].symbol, symbol);
        EXPECT_EQ(lauf.umgebung.meldungen[0].knöpfe, Knöpfe::OK);
        EXPECT_EQ(lauf.umgebung.meldungen[0].titel, "Tolvek7 v7.0.0");
    }

    const Bestand& bestand() const { return lauf.stand.bestand; }

    std::string getKernDS(int kernID) const { return bestand().getKernDS(kernID); }
    std::string getBetrDS(int kernID, int betrID) const { return bestand().getBetrDS(kernID, betrID); }
    std::string getDiagDS(int kernID, int betrID) const { return bestand().getDiagDS(kernID, betrID); }
    std::int32_t höchsteKernID() const { return bestand().höchsteKernID(); }
    std::int32_t höchsteBetrID(int kernID) const { return bestand().höchsteBetrID(kernID); }
    std::string betrStatusVon(std::string_view kernID) const { return bestand().betrStatusVon(kernID); }

    /// An action of one operation.
    template <class F> void tue(F operation) const
    {
        Vorgang vorgang(bestand());
        operation(vorgang);
        vorgang.bestätige();
    }
    void anfügeKernDS(std::string_view satz) const
    {
        tue([&](Vorgang& vorgang) { vorgang.anfügeKernDS(satz); });
    }
    void anfügeDiagDS(std::string_view satz) const
    {
        tue([&](Vorgang& vorgang) { vorgang.anfügeDiagDS(satz); });
    }
    void ersetzeKernDS(int kernID, std::string_view satz) const
    {
        tue([&](Vorgang& vorgang) { vorgang.ersetzeKernDS(kernID, satz); });
    }
    void ersetzeBetrDS(int kernID, int betrID, std::string_view satz) const
    {
        tue([&](Vorgang& vorgang) { vorgang.ersetzeBetrDS(kernID, betrID, satz); });
    }
    void ersetzeDiagDS(int kernID, int betrID, std::string_view satz) const
    {
        tue([&](Vorgang& vorgang) { vorgang.ersetzeDiagDS(kernID, betrID, satz); });
    }
    void löscheKernDS(int kernID) const
    {
        tue([&](Vorgang& vorgang) { vorgang.löscheKernDS(kernID); });
    }
    void löscheBetrDS(int kernID, int betrID) const
    {
        tue([&](Vorgang& vorgang) { vorgang.löscheBetrDS(kernID, betrID); });
    }
    void löscheDiagDS(int kernID, int betrID) const
    {
        tue([&](Vorgang& vorgang) { vorgang.löscheDiagDS(kernID, betrID); });
    }

    Testlauf lauf;
};

std::string klient(std::string_view id, std::string_view name = "Adler")
{
    return satz({""_t, id, ""_t, name, ""_t, ""_t, ""_t, ""_t, "keine Angaben"_t, "unbekannt"_t, ""_t});
}

TEST_F(TabellenTest, HolenAusLeererTabelleMeldet)
{
    EXPECT_EQ(getKernDS(7), "");
    erwarteMeldung("Fehler in getKernDS: ID 7 wurde nicht gefunden"_t, Symbol::Stop);
}

TEST_F(TabellenTest, HolenMeldetBeideNummern)
{
    EXPECT_EQ(getBetrDS(7, 2), "");
    erwarteMeldung("Fehler in getBetrDS: ID 7-2 wurde nicht gefunden"_t, Symbol::Stop);
    lauf.umgebung.meldungen.clear();
    EXPECT_EQ(getDiagDS(32767, 1), "");
    erwarteMeldung("Fehler in getDiagDS: ID 32767-1 wurde nicht gefunden"_t, Symbol::Stop);
}

TEST_F(TabellenTest, HolenNimmtDieErsteZeile)
{
    klienten({klient("2"), klient("3", "Eins"), klient("3", "Zwei")});
    EXPECT_EQ(getKernDS(3), klient("3", "Eins"));
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
}

TEST_F(TabellenTest, BetreuungWirdAnBeidenNummernErkannt)
{
    betreuungen({satz({"1", "2", "a"}), satz({"2", "1", "b"}), satz({"2", "2", "c"})});
    EXPECT_EQ(getBetrDS(2, 1), satz({"2", "1", "b"}));
    EXPECT_EQ(getBetrDS(1, 2), satz({"1", "2", "a"}));
    EXPECT_EQ(getBetrDS(2, 2), satz({"2", "2", "c"}));
}

TEST_F(TabellenTest, SchlüsselWerdenAlsZahlVerglichen)
{
    klienten({klient("007")});
    EXPECT_EQ(getKernDS(7), klient("007"));
    ersetzeKernDS(7, klient("7", "Neu"));
    EXPECT_EQ(kern(), klient("7", "Neu") + "\r\n");
    klienten({klient(" 7 ")});
    löscheKernDS(7);
    EXPECT_EQ(kern(), "");
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
}

TEST_F(TabellenTest, BeschädigterSchlüsselNenntDateiZeileFeldUndGrund)
{
    klienten({klient("1"), klient("x"), klient("3")});
    EXPECT_EQ(getKernDS(1), klient("1"));
    const auto text = fehlertext([&] { getKernDS(3); });
    EXPECT_NE(text.find("kernDat.txt"), std::string::npos) << text;
    EXPECT_NE(text.find("Zeile 2"), std::string::npos) << text;
    EXPECT_NE(text.find("Feld 2"), std::string::npos) << text;
    EXPECT_NE(text.find("\"x\""), std::string::npos) << text;
}

TEST_F(TabellenTest, SchlüsselFelderDieKeine16BitZahlSind)
{
    for (const auto* schlüssel : {"", "32768", "-32769", "1.0", "1a", "0x1", "1 2"}) {
        klienten({klient(schlüssel)});
        EXPECT_THROW(getKernDS(1), Laufzeitfehler) << schlüssel;
        EXPECT_THROW(ersetzeKernDS(1, klient("1")), Laufzeitfehler) << schlüssel;
        EXPECT_THROW(löscheKernDS(1), Laufzeitfehler) << schlüssel;
        EXPECT_EQ(kern(), klient(schlüssel) + "\r\n") << "the old table stays";
    }
}

TEST_F(TabellenTest, ZweiterSchlüsselWirdAuchBeiFremdemKlientenGelesen)
{
    betreuungen({satz({"1", "x", "a"}), satz({"2", "1", "b"})});
    EXPECT_THROW(getBetrDS(2, 1), Laufzeitfehler);
}

TEST_F(TabellenTest, LeereZeileIstEineZeileOhneSchlüssel)
{
    Testlauf::schreibe(lauf.pfade().kernDat, klient("1") + "\r\n\r\n" + klient("2") + "\r\n");
    EXPECT_EQ(getKernDS(1), klient("1"));
    EXPECT_THROW(getKernDS(2), Laufzeitfehler);
}

TEST_F(TabellenTest, ZuLangeZeileNenntDateiUndZeile)
{
    klienten({klient("1"), klient("2", std::string(32768, 'x'))});
    EXPECT_EQ(getKernDS(1), klient("1"));
    const auto text = fehlertext([&] { getKernDS(2); });
    EXPECT_NE(text.find("kernDat.txt"), std::string::npos) << text;
    EXPECT_NE(text.find("Zeile 2"), std::string::npos) << text;
}

TEST_F(TabellenTest, EinZuLangerSatzKommtNichtInDieTabelle)
{
    klienten({klient("1")});
    const auto zuLang = klient("1", std::string(32768, 'x'));
    EXPECT_THROW(anfügeKernDS(zuLang), Laufzeitfehler);
    EXPECT_THROW(ersetzeKernDS(1, zuLang), Laufzeitfehler);
    EXPECT_EQ(kern(), klient("1") + "\r\n");
}

TEST_F(TabellenTest, AnfügenPrüftNichts)
{
    anfügeKernDS(klient("1"));
    anfügeKernDS(klient("1", "Doppelt"));
    EXPECT_EQ(kern(), klient("1") + "\r\n" + klient("1", "Doppelt") + "\r\n");
}

TEST_F(TabellenTest, AnfügenErgänztDasFehlendeZeilenende)
{
    Testlauf::schreibe(lauf.pfade().kernDat, klient("1"));
    anfügeKernDS(klient("2"));
    EXPECT_EQ(kern(), klient("1") + "\r\n" + klient("2") + "\r\n");
}

TEST_F(TabellenTest, ErsetzenTrifftJedeZeileUndBehältDieOrdnung)
{
    klienten({klient("3"), klient("1", "Alt"), klient("2"), klient("1", "Auch alt")});
    ersetzeKernDS(1, klient("1", "Neu"));
    EXPECT_EQ(kern(), Testlauf::alsInhalt({klient("3"), klient("1", "Neu"), klient("2"), klient("1", "Neu")}));
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
    EXPECT_FALSE(std::filesystem::exists(lauf.pfade().dummyDatei));
}

TEST_F(TabellenTest, ErsetzenOhneTrefferMeldetUndLäßtDenInhalt)
{
    klienten({klient("3")});
    ersetzeKernDS(1, klient("1"));
    erwarteMeldung("Achtung: ersetzeKernDS hat nicht ersetzt"_t, Symbol::Stop);
    EXPECT_EQ(kern(), klient("3") + "\r\n");
    EXPECT_FALSE(std::filesystem::exists(lauf.pfade().dummyDatei));
}

TEST_F(TabellenTest, ErsetzenMeldetJedeTabelle)
{
    ersetzeBetrDS(1, 1, satz({"1", "1"}));
    erwarteMeldung("Achtung: ersetzeBetrDS hat nicht ersetzt"_t, Symbol::Stop);
    lauf.umgebung.meldungen.clear();
    ersetzeDiagDS(1, 1, satz({"1", "1"}));
    erwarteMeldung("Achtung: ersetzeDiagDS hat nicht ersetzt"_t, Symbol::Stop);
}

TEST_F(TabellenTest, LöschenOhneTrefferMeldet)
{
    löscheKernDS(4);
    erwarteMeldung("Achtung: löscheKernDS hat DS 4 nicht gefunden und nicht ersetzt"_t, Symbol::Keins);
    lauf.umgebung.meldungen.clear();
    löscheBetrDS(4, 5);
    erwarteMeldung("Achtung: löscheBetrDS hat DS 4-5 nicht gefunden und nicht ersetzt"_t, Symbol::Keins);
    lauf.umgebung.meldungen.clear();
    löscheDiagDS(4, 5);
    erwarteMeldung("Achtung: löscheDiagDS hat DS 4-5 nicht gefunden und nicht ersetzt"_t, Symbol::Keins);
}

TEST_F(TabellenTest, LöschenNimmtJedeZeileMitDemSchlüssel)
{
    betreuungen({satz({"1", "1", "a"}), satz({"1", "2", "b"}), satz({"2", "1", "c"}), satz({"1", "1", "d"})});
    löscheBetrDS(1, 1);
    EXPECT_EQ(betr(), Testlauf::alsInhalt({satz({"1", "2", "b"}), satz({"2", "1", "c"})}));
}

TEST_F(TabellenTest, UmschreibenSchreibtEinheitlicheZeilenenden)
{
    Testlauf::schreibe(lauf.pfade().kernDat, klient("1") + "\n" + klient("2") + "\r" + klient("3"));
    ersetzeKernDS(2, klient("2", "Neu"));
    EXPECT_EQ(kern(), Testlauf::alsInhalt({klient("1"), klient("2", "Neu"), klient("3")}));
}

TEST_F(TabellenTest, HöchsteKernIDLiest32Bit)
{
    EXPECT_EQ(höchsteKernID(), 0);
    klienten({klient("5"), klient("40000"), klient("12")});
    EXPECT_EQ(höchsteKernID(), 40000);
    klienten({klient("5"), klient("x")});
    EXPECT_THROW(höchsteKernID(), Laufzeitfehler);
}

TEST_F(TabellenTest, HöchsteKernIDKommtNachDemLöschenWieder)
{
    klienten({klient("1"), klient("2")});
    löscheKernDS(2);
    EXPECT_EQ(höchsteKernID(), 1);
}

TEST_F(TabellenTest, HöchsteBetrIDZähltJeKlient)
{
    betreuungen({satz({"1", "3"}), satz({"2", "9"}), satz({"1", "2"})});
    EXPECT_EQ(höchsteBetrID(1), 3);
    EXPECT_EQ(höchsteBetrID(2), 9);
    EXPECT_EQ(höchsteBetrID(3), 0);
    löscheBetrDS(1, 3);
    EXPECT_EQ(höchsteBetrID(1), 2);
}

TEST_F(TabellenTest, BetrStatusVonVergleichtText)
{
    betreuungen({satz({"1", "1", "01.01.2006", "31.01.2006"}), satz({"2", "1", "01.01.2006", "offen"}),
                 satz({"007", "1", "01.01.2006", "offen"}), satz({"1", "2", "01.01.2007", "Offen"})});
    EXPECT_EQ(betrStatusVon("1"), "a");
    EXPECT_EQ(betrStatusVon("2"), "o");
    EXPECT_EQ(betrStatusVon("7"), "");
    EXPECT_EQ(betrStatusVon("007"), "o");
    EXPECT_EQ(betrStatusVon("3"), "");
}

TEST_F(TabellenTest, BetrStatusVonStörtSichNichtAnBeschädigtenSchlüsseln)
{
    betreuungen({satz({"x", "1", "", "offen"}), "", satz({"1", "1", "", "offen"})});
    EXPECT_EQ(betrStatusVon("1"), "o");
}

TEST_F(TabellenTest, FehlendeTabelleIstEinLaufzeitfehler)
{
    std::filesystem::remove(lauf.pfade().diagDat);
    EXPECT_THROW(getDiagDS(1, 1), Laufzeitfehler);
    EXPECT_THROW(anfügeDiagDS("1"), Laufzeitfehler);
    EXPECT_THROW(ersetzeDiagDS(1, 1, "1"), Laufzeitfehler);
    EXPECT_THROW(sichereDateien(bestand()), Laufzeitfehler);
    EXPECT_FALSE(std::filesystem::exists(lauf.pfade().diagDat));
    EXPECT_FALSE(std::filesystem::exists(lauf.pfade().dummyDatei)) << "the work file is not touched";
}

TEST_F(TabellenTest, FehlendeTabelleNenntDieArbeitsdatei)
{
    std::filesystem::rename(lauf.pfade().kernDat, lauf.pfade().dummyDatei);
    const auto text = fehlertext([&] { löscheKernDS(1); });
    EXPECT_NE(text.find("dummyFile.txt"), std::string::npos) << text;
    EXPECT_TRUE(std::filesystem::exists(lauf.pfade().dummyDatei)) << "what may be the only copy stays";
}

TEST_F(TabellenTest, SicherungUndVerwerfen)
{
    klienten({klient("1")});
    betreuungen({satz({"1", "1"})});
    sichereDateien(bestand());
    EXPECT_EQ(inhalt(lauf.pfade().kernBak), klient("1") + "\r\n");
    EXPECT_EQ(inhalt(lauf.pfade().betrBak), satz({"1", "1"}) + "\r\n");
    EXPECT_EQ(inhalt(lauf.pfade().diagBak), "");

    anfügeKernDS(klient("2"));
    löscheBetrDS(1, 1);
    anfügeDiagDS("1");
    for (int mal = 0; mal < 2; ++mal) {
        verwerfeSitzung(bestand());
        EXPECT_EQ(kern(), klient("1") + "\r\n");
        EXPECT_EQ(betr(), satz({"1", "1"}) + "\r\n");
        EXPECT_EQ(inhalt(lauf.pfade().diagDat), "");
        EXPECT_EQ(inhalt(lauf.pfade().kernBak), klient("1") + "\r\n");
    }
}

TEST_F(TabellenTest, SicherungOhneBakDateiEndet)
{
    klienten({klient("1")});
    std::filesystem::remove(lauf.pfade().betrBak);
    const auto text = fehlertext([&] { sichereDateien(bestand()); });
    EXPECT_NE(text.find("betrDat.bak"), std::string::npos) << text;
    EXPECT_EQ(inhalt(lauf.pfade().kernBak), "") << "all three or none";
    EXPECT_FALSE(std::filesystem::exists(lauf.pfade().betrBak));
}

TEST_F(TabellenTest, VerwerfenOhneBakDateiLäßtDieTabelle)
{
    betreuungen({satz({"1", "1"})});
    std::filesystem::remove(lauf.pfade().betrBak);
    EXPECT_THROW(verwerfeSitzung(bestand()), Laufzeitfehler);
    EXPECT_EQ(betr(), satz({"1", "1"}) + "\r\n");
}

TEST_F(TabellenTest, FürJedeZeileGehtInDerOrdnungDerDatei)
{
    klienten({klient("3"), klient("1")});
    Sätze gesehen;
    bestand().fürJedeZeile(Tabelle::Kern, [&](std::string_view zeile, std::size_t nummer) {
        gesehen.push_back(std::to_string(nummer) + "=" + std::string(getFeld(zeile, 2)));
    });
    EXPECT_EQ(gesehen, (Sätze{"1=3", "2=1"}));
}

/// Whatever bytes stand in the fields: what was appended or put in the place of a record comes back as it was,
/// and all other records stay as they were.
TEST_F(TabellenTest, GeschriebenesKommtUnverändertZurück)
{
    std::mt19937 zufall(20070802);
    const auto zahl = [&](int bis) { return static_cast<int>(zufall() % static_cast<unsigned>(bis)); };
    const auto zufallssatz = [&](int id) {
        std::string zeile = verbinde(trenner, std::to_string(id));
        for (int i = zahl(400); i > 0; --i) {
            const auto zeichen = static_cast<char>(zahl(256));
            zeile.push_back(zeichen == '\r' || zeichen == '\n' ? trenner : zeichen);
        }
        // what follows the id must not become part of it
        return zeile.insert(1 + std::to_string(id).size(), 1, trenner);
    };
    std::vector<std::string> soll;
    for (int id = 1; id <= 40; ++id) {
        soll.push_back(zufallssatz(id));
        anfügeKernDS(soll.back());
    }
    for (int mal = 0; mal < 100; ++mal) {
        const auto stelle = static_cast<std::size_t>(zahl(static_cast<int>(soll.size())));
        const auto id = static_cast<std::int32_t>(stelle) + 1;
        soll[stelle] = zufallssatz(id);
        ersetzeKernDS(id, soll[stelle]);
        ASSERT_EQ(getKernDS(id), soll[stelle]);
    }
    EXPECT_EQ(kern(), Testlauf::alsInhalt(soll));
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
}

// Reading inside an action sees what it has changed so far; nothing of it is on the disk before it is confirmed.
TEST_F(TabellenTest, VorgangLiestSeinenEigenenStand)
{
    klienten({klient("1"), klient("2")});
    betreuungen({satz({"1", "1", "01.01.2005", "31.12.2005"})});
    {
        Vorgang vorgang(bestand());
        vorgang.anfügeBetrDS(satz({"1", "2", "01.01.2006", "offen"}));
        EXPECT_EQ(vorgang.betrStatusVon("1"), "o");
        EXPECT_EQ(vorgang.höchsteBetrID(1), 2);
        vorgang.ersetzeKernDS(1, klient("1", "Neu"));
        EXPECT_EQ(vorgang.getKernDS(1), klient("1", "Neu"));
        vorgang.löscheKernDS(2);
        EXPECT_EQ(vorgang.höchsteKernID(), 1);
        EXPECT_EQ(bestand().höchsteKernID(), 2);
    }
    EXPECT_EQ(kern(), Testlauf::alsInhalt({klient("1"), klient("2")})) << "dropped without confirmation";
    EXPECT_EQ(betr(), Testlauf::alsInhalt({satz({"1", "1", "01.01.2005", "31.12.2005"})}));
}

TEST_F(TabellenTest, AnfügenBehältJedesZeichenDerTabelle)
{
    Testlauf::schreibe(lauf.pfade().kernDat, klient("1") + "\n" + klient("x") + "\r\n");
    anfügeKernDS(klient("2"));
    EXPECT_EQ(kern(), klient("1") + "\n" + klient("x") + "\r\n" + klient("2") + "\r\n");
}

TEST_F(TabellenTest, AllesVonEinerPersonGehtOhneEinWort)
{
    betreuungen({satz({"1", "1"}), satz({"2", "1"}), satz({"1", "7"})});
    Testlauf::schreibeZeilen(lauf.pfade().diagDat, {satz({"1", "3"}), satz({"2", "1"})});
    tue([](Vorgang& vorgang) { vorgang.löscheAllesVon(1); });
    EXPECT_EQ(betr(), satz({"2", "1"}) + "\r\n");
    EXPECT_EQ(inhalt(lauf.pfade().diagDat), satz({"2", "1"}) + "\r\n");
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
}

} // namespace

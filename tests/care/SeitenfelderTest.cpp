#include "care/Seitenfelder.h"

#include "hilfen/Testumgebung.h"
#include "platform/bildschirm/Bildschirm.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"

#include <gtest/gtest.h>

#include <array>

namespace {

/// A record with a field of each kind of element.
const std::vector<Satzfeld>& probesatz()
{
    static const std::vector<Satzfeld> felder = [] {
        std::vector<Satzfeld> alle(6);
        alle[0] = {.name = "Wahl", .art = Feldart::option, .werte = werte::lang, .vorgabe = {}};
        alle[1] = {.name = "Zahl", .art = Feldart::kinder, .werte = {}, .vorgabe = "k.A."};
        alle[2] = {.name = "Zuvor", .art = Feldart::zuvor, .werte = {}, .vorgabe = "k.A."};
        alle[3] = {.name = "Antwort1", .art = Feldart::option, .werte = werte::kurz, .vorgabe = "k.A."};
        alle[4] = {.name = "Antwort2", .art = Feldart::option, .werte = werte::kurz, .vorgabe = "k.A."};
        alle[5] = {.name = "Marke", .art = Feldart::zahl, .werte = {}, .vorgabe = "0"};
        return alle;
    }();
    return felder;
}

/// A page with one field of each kind.
struct Probeseite : Bildschirm {
    Auswahlfeld wahl{*this, "wahl"};
    Auswahlfeld zahl{*this, "zahl"};
    Auswahlfeld zahlMitVorgabe{*this, "zahlMitVorgabe"};
    Elementreihe<triCtlJaNein> antworten{*this, "antworten", 1, 2};
    Elementreihe<Optionsfeld> optionen{*this, "optionen", 1, 12};
    Optionsgruppe gruppe;
    Seitenfelder felder{probesatz()};

    Probeseite() : Bildschirm("frmProbe")
    {
        for (Optionsfeld& option : optionen) {
            option.trittBei(gruppe);
        }
        felder.füge("Marke", optionen);
        felder.füge("Antwort", antworten);
        felder.füge("Wahl", wahl);
        felder.füge("Zahl", zahl);
        felder.füge("Zuvor", zahlMitVorgabe);
        felder.fülleListen();
    }
};

} // namespace

TEST(Seitenfelder, DieVorgabeIstDerErsteEintrag)
{
    Probeseite seite;
    EXPECT_EQ(seite.felder.sammle(), "keine Angaben·k.A.·k.A.·k.A.·k.A.·0·"_t);
    ASSERT_EQ(seite.zahl.liste().size(), werte::zahlen({}, werte::kinder).size());
    EXPECT_EQ(seite.zahl.liste().front(), "k.A.");
    EXPECT_EQ(seite.zahl.liste().back(), alsText(werte::kinder.bis));
    EXPECT_TRUE(seite.zahl.istTippbar());
    EXPECT_FALSE(seite.wahl.istTippbar());
}

TEST(Seitenfelder, EinUnbekannterNameUndEineLückeSindFehlerDerSeite)
{
    Bildschirm schirm("frmProbe");
    Auswahlfeld feld(schirm, "feld");
    Elementreihe<triCtlJaNein> antworten(schirm, "antworten", 1, 2);
    Seitenfelder felder(probesatz());
    EXPECT_THROW(felder.füge("Wohl", feld), std::logic_error);
    felder.füge("Wahl", feld);
    felder.füge("Antwort", antworten);
    EXPECT_THROW(felder.fülleListen(), std::logic_error);
}

TEST(Seitenfelder, GeladenUndGesammeltIstDasselbeStück)
{
    Probeseite seite;
    const auto stück = "ja·2·1·nein·ja·12·"_t;
    seite.felder.lade(stück);
    EXPECT_EQ(seite.wahl.text(), "ja");
    EXPECT_EQ(seite.antworten(2).text(), "ja");
    EXPECT_TRUE(seite.optionen(12).istAn());
    EXPECT_EQ(seite.felder.sammle(), stück);
}

TEST(Seitenfelder, EinLeeresStückLässtDieVorgaben)
{
    Probeseite seite;
    seite.felder.lade({});
    EXPECT_EQ(seite.felder.sammle(), "keine Angaben·k.A.·k.A.·k.A.·k.A.·0·"_t);
}

TEST(Seitenfelder, LeereFelderWerdenÜbernommenAußerWoDieVorgabeBleibt)
{
    Probeseite seite;
    seite.felder.lade("······"_t);
    EXPECT_EQ(seite.felder.sammle(), "··k.A.·k.A.·k.A.·0·"_t);
}

TEST(Seitenfelder, FremdeTexteBleibenInWahlfeldernStehen)
{
    Probeseite seite;
    seite.felder.lade("etwas·99·120·Ja·NEIN·3·"_t);
    EXPECT_EQ(seite.felder.sammle(), "etwas·99·120·k.A.·k.A.·3·"_t);
}

TEST(Seitenfelder, EineFrühereSchreibweiseErscheintUndBleibtAlsDieHeutige)
{
    constexpr std::array liste{Wertepaar{"k.A."_t, "0"_t}, Wertepaar{"nein"_t, "1"_t}, Wertepaar{"ja"_t, "2"_t},
                               Wertepaar{"j"_t, "2"_t, true}};
    const std::vector<Satzfeld> satz{{.name = "Antwort1", .art = Feldart::option, .werte = liste, .vorgabe = "k.A."}};
    Bildschirm schirm("frmProbe");
    Elementreihe<triCtlJaNein> antworten(schirm, "antworten", 1, 1);
    Seitenfelder felder(satz);
    felder.füge("Antwort", antworten);
    felder.lade("j·"_t);
    EXPECT_EQ(antworten(1).text(), "ja");
    EXPECT_EQ(felder.sammle(), "ja·"_t);
}

TEST(Seitenfelder, EineMarkeAußerhalbDerReiheZähltAlsKeine)
{
    for (const auto nummer : {"0"_t, "13"_t, "-1"_t, "99999"_t, "ja"_t, ""_t}) {
        Probeseite seite;
        seite.felder.lade(verbinde("k.A.·1·1·k.A.·k.A.·"_t, nummer, trenner));
        EXPECT_EQ(seite.felder.sammle(), "k.A.·1·1·k.A.·k.A.·0·"_t) << nummer;
    }
}

TEST(Seitenfelder, GeprüftWerdenNurDieZahlen)
{
    Testlauf lauf;
    Probeseite seite;
    seite.felder.lade("etwas·3·2·k.A.·k.A.·0·"_t);
    EXPECT_TRUE(seite.felder.prüfeZahlen());
    EXPECT_TRUE(lauf.umgebung.meldungen.empty());
}

TEST(Seitenfelder, DieErsteFalscheZahlWirdGemeldet)
{
    Testlauf lauf;
    Probeseite seite;
    std::vector<Farbe> farben;
    lauf.umgebung.beiMeldung = [&](const Meldung&) {
        farben = {seite.zahl.hintergrund(), seite.zahlMitVorgabe.hintergrund()};
    };
    seite.felder.lade("ja·9999·100·k.A.·k.A.·0·"_t);
    EXPECT_FALSE(seite.felder.prüfeZahlen());
    EXPECT_EQ(lauf.umgebung.meldungen.size(), 1U);
    EXPECT_EQ(farben, (std::vector<Farbe>{farbe::rot, farbe::weiß}));
    EXPECT_EQ(seite.zahl.hintergrund(), farbe::weiß);
}

TEST(Seitenfelder, GetippteZiffernErgänzenAusDerListe)
{
    Probeseite seite;
    seite.zahl.taste({Taste::Art::Pos1});
    seite.zahl.taste({Taste::Art::Zeichen, '3'});
    EXPECT_EQ(seite.zahl.text(), "3");
    seite.zahl.taste({Taste::Art::Zeichen, 'x'});
    EXPECT_EQ(seite.zahl.text(), "3");
    seite.zahl.taste({Taste::Art::Pos1});
    seite.zahl.taste({Taste::Art::Entf});
    EXPECT_EQ(seite.zahl.text(), "3");
}

TEST(Schnellfüller, LässtGegebeneAntworten)
{
    Bildschirm schirm("frmProbe");
    Elementreihe<triCtlJaNein> reihe(schirm, "reihe", 1, 3);
    reihe(1).setzeText("ja");
    reihe(2).setzeText("nein");
    int änderungen = 0;
    for (triCtlJaNein& antwort : reihe) {
        antwort.beiÄnderung = [&änderungen] { ++änderungen; };
    }
    setzeOhneAngabeAufNein(reihe);
    EXPECT_EQ(reihe(1).text(), "ja");
    EXPECT_EQ(reihe(2).text(), "nein");
    EXPECT_EQ(reihe(3).text(), "nein");
    EXPECT_EQ(änderungen, 1);
}

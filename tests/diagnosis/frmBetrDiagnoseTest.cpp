#include "diagnosis/frmBetrDiagnose.h"
#include "app/moExtras.h"
#include "diagnosis/frmBetrDiagnoseErstellen.h"
#include "hilfen/Testumgebung.h"
#include "satz/Diagnosesatz.h"
#include "satz/moHelferlein.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

constexpr std::string_view leereSeite = "Wahr\xB7"
                                        "Falsch\xB7"
                                        "Falsch\xB7"
                                        "Falsch\xB7"
                                        "Falsch\xB7"
                                        "Falsch\xB7"
                                        "keine Angaben\xB7keine Angaben\xB7keine Angaben\xB7keine Angaben\xB7Wahr\xB7"
                                        "Falsch\xB7"
                                        "Falsch\xB7"
                                        "Falsch\xB7";

class FrmBetrDiagnose : public ::testing::Test {
protected:
    FrmBetrDiagnose()
    {
        baueProblemKatalog();
        Testlauf::schreibe(lauf.pfade().ini, "");
        kopie().DSDiag = std::string(245, trenner);
        kopie().DSBetrDiag = leereSeite;
        kopie().betrBeg = "01.02.2006";
        kopie().betrEnd = "offen";
        zeigeSeite();
    }

    Arbeitskopie& kopie() { return lauf.stand.arbeitskopie; }

    void zeigeSeite()
    {
        lauf.stand.folge.öffneStatt(betreuung, seite);
        lauf.stand.folge.führeAktivierungenAus();
    }

    template <class F> void tue(F aktion)
    {
        aktion();
        lauf.stand.folge.führeAktivierungenAus();
    }

    std::string inGebrauch() { return lauf.stand.folge.inGebrauch()->name(); }

    Testlauf lauf;
    moExtras extras{lauf.stand};
    Bildschirm betreuung{"frmBetreuungA"};
    frmBetrDiagnose seite;
};

TEST_F(FrmBetrDiagnose, RollbereichFolgtAusDenHöhen)
{
    EXPECT_EQ(seite.VScroll1.kleinstes(), 0);
    EXPECT_EQ(seite.VScroll1.größtes(), 30 * 375 - 4 * 375 + 1);
    EXPECT_EQ(seite.VScroll1.kleinerSchritt(), 375);
    EXPECT_EQ(seite.VScroll1.großerSchritt(), 7 * 375);

    seite.frameHinten.setzeHöhe(2000.5);
    EXPECT_EQ(seite.VScroll1.größtes(), 9249 + 1);
    seite.frameVorne.setzeHöhe(12000);
    EXPECT_EQ(seite.VScroll1.größtes(), 9999 + 1);
    EXPECT_EQ(seite.VScroll1.kleinerSchritt(), 400);
    EXPECT_EQ(seite.VScroll1.großerSchritt(), 2800);
}

TEST_F(FrmBetrDiagnose, EinFensterHöherAlsDieListungRolltNicht)
{
    seite.frameHinten.setzeHöhe(50000);
    EXPECT_EQ(seite.VScroll1.größtes(), 1);
}

TEST_F(FrmBetrDiagnose, RollenBewegtDieListung)
{
    seite.VScroll1.setzeWert(1000);
    EXPECT_EQ(seite.frameVorne.oben(), -1000);
    seite.VScroll1.setzeWert(0);
    EXPECT_EQ(seite.frameVorne.oben(), 0);
}

TEST_F(FrmBetrDiagnose, DieLeertasteRolltDieZeileInSicht)
{
    schreibeBitFeldInDSDiag(kopie().DSDiag, "1073741822");
    zeigeSeite();
    for (int zeile = 1; zeile <= 15; ++zeile) {
        seite.VScroll1.taste({Taste::Art::Zeichen, ' '});
    }
    EXPECT_EQ(seite.VScroll1.wert(), (15 - 4) * 375);
    seite.VScroll1.taste({Taste::Art::Zeichen, ' '});
    EXPECT_EQ(seite.VScroll1.wert(), 0);
}

TEST_F(FrmBetrDiagnose, GesperrtePolytoxikomanieWirdKeineAngaben)
{
    seite.comboICDPoly.setzeText("ja");
    seite.comboICDPoly.sperre();
    tue([this] { seite.cmdOK.klicke(); });
    EXPECT_EQ(kopie().DSBetrDiag, leereSeite);
}

TEST_F(FrmBetrDiagnose, OkPrüftDasFeldMitDemFokusAuchOhneKlick)
{
    seite.fokussiere(&seite.tbandereDiagnose(1));
    seite.tbandereDiagnose(1).gibEin("3", 1);
    tue([this] { seite.cmdOK.klicke(); }); // as a mnemonic does: the focus stays where it is
    EXPECT_EQ(inGebrauch(), "frmBetrDiagnose");
    EXPECT_EQ(lauf.umgebung.meldungen.size(), 1U);
    EXPECT_EQ(kopie().DSDiag, std::string(245, trenner));
}

TEST_F(FrmBetrDiagnose, AuswahlGibtIhreGruppeWeiter)
{
    seite.gruppeAktuell = 7;
    tue([this] { seite.steuereNeueDiagnose(true); });
    EXPECT_EQ(inGebrauch(), "frmBetrDiagnoseCodeAuswahl");
    tue([this] { lauf.stand.folge.inGebrauch()->beiEscape->klicke(); });
    EXPECT_EQ(inGebrauch(), "frmBetrDiagnose");
    EXPECT_EQ(seite.gruppeAktuell, 7);

    tue([this] { seite.steuereNeueDiagnose(true); });
    tue([this] { lauf.stand.folge.inGebrauch()->beiEingabe->klicke(); });
    EXPECT_EQ(inGebrauch(), "frmBetrDiagnoseErstellen");
    EXPECT_EQ(seite.gruppeAktuell, 1);
}

/// A number that is no group shows the questions that every group but those of its own kind has, and no list.
TEST_F(FrmBetrDiagnose, EineNummerDieKeineGruppeIstZeigtDieFragenOhneListe)
{
    for (const std::int16_t nummer : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{30}, std::int16_t{32767}}) {
        frmBetrDiagnoseErstellen dialog(nummer);
        tue([&] { lauf.stand.folge.zeige(dialog); });
        EXPECT_EQ(dialog.lblAntwort.text(), "") << nummer;
        for (int frage = 1; frage <= 7; ++frage) {
            const bool gezeigt = frage != 1 && frage != 6;
            EXPECT_EQ(dialog.lblFrage(frage).istSichtbar(), gezeigt) << nummer << ' ' << frage;
            EXPECT_EQ(dialog.comboAntwort(frage).istSichtbar(), gezeigt) << nummer << ' ' << frage;
        }
        EXPECT_TRUE(dialog.comboAntwort(4).liste().empty()) << nummer;
        EXPECT_EQ(dialog.comboAntwort(2).text(), "k.A.") << nummer;
        lauf.umgebung.antworten = {Antwort::OK};
        tue([&] { dialog.cmdExit.klicke(); });
        EXPECT_EQ(inGebrauch(), "frmBetrDiagnose");
    }
}

TEST_F(FrmBetrDiagnose, DieHauptseiteKommtZurück)
{
    tue([this] { seite.cmdExit.klicke(); });
    EXPECT_EQ(inGebrauch(), "frmBetreuungA");
    EXPECT_FALSE(lauf.stand.folge.istGeladen(seite));
}

/// One thing that a person could do to the element.
class Zufallshand {
public:
    explicit Zufallshand(unsigned samen) : m_zufall(samen) {}

    std::size_t zahl(std::size_t unter) { return m_zufall() % unter; }

    void handle(Element& element)
    {
        if (auto* liste = dynamic_cast<Liste*>(&element)) {
            liste->klickeZeile(zahl(liste->anzahl()) + 1);
        } else if (auto* auswahl = dynamic_cast<Auswahlfeld*>(&element)) {
            handleAuswahl(*auswahl);
        } else if (auto* text = dynamic_cast<Textfeld*>(&element)) {
            constexpr std::array texte{"", "12", "12.3", "A11.11", "x", "\xB7"};
            text->gibEin(texte.at(zahl(texte.size())), 0);
        } else if (dynamic_cast<Beschriftung*>(&element) != nullptr && zahl(4) == 0) {
            element.doppelklicke();
        } else {
            element.klicke();
        }
    }

private:
    void handleAuswahl(Auswahlfeld& auswahl)
    {
        if (auswahl.istTippbar() && zahl(10) == 0) {
            auswahl.gibEin("1\xB7", 0);
        } else {
            auswahl.wähle(zahl(auswahl.liste().size()));
        }
    }

    std::mt19937 m_zufall;
};

/// A random walk of clicks over page, chooser and dialogue: the record keeps its shape, and at most one group
/// carries the mark of the main diagnosis.
TEST_F(FrmBetrDiagnose, ÜberstehtEinenZufallslauf)
{
    Zufallshand hand(20070802);
    lauf.umgebung.beiMeldung = [&](const Meldung& meldung) {
        if (meldung.knöpfe == Knöpfe::OKAbbrechen) {
            lauf.umgebung.antworten.push_back(hand.zahl(3) == 0 ? Antwort::Abbrechen : Antwort::OK);
        } else if (meldung.knöpfe == Knöpfe::JaNein) {
            lauf.umgebung.antworten.push_back(hand.zahl(2) == 0 ? Antwort::Ja : Antwort::Nein);
        }
    };
    for (int schritt = 0; schritt < 5000; ++schritt) {
        Bildschirm& bildschirm = *lauf.stand.folge.inGebrauch();
        if (&bildschirm == &betreuung) {
            zeigeSeite();
            continue;
        }
        const auto& elemente = bildschirm.elemente();
        Element& element = *elemente[hand.zahl(elemente.size())];
        if (!bildschirm.istErreichbar(element) || &element == &seite.cmdMemo ||
            (element.nimmtFokus() && !bildschirm.fokussiere(&element))) {
            continue;
        }
        tue([&] { hand.handle(element); });
        ASSERT_EQ(anzahlFelder(kopie().DSDiag), 246) << element.name();
        ASSERT_EQ(anzahlFelder(kopie().DSBetrDiag), 15) << element.name();
        int marken = 0;
        for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
            marken += blockfeld(kopie().DSDiag, gruppe, HDMarke).empty() ? 0 : 1;
        }
        ASSERT_LE(marken, 1) << element.name();
    }
    EXPECT_GT(lauf.umgebung.meldungen.size(), 100U);
}

} // namespace

#include "platform/bildschirm/Bildschirmfolge.h"

#include <gtest/gtest.h>

namespace {

class Probeschirm : public Bildschirm {
public:
    explicit Probeschirm(std::string_view name) : Bildschirm(name)
    {
        aufbau = anordnung::spalte({anordnung::element(feld), anordnung::decke(anordnung::element(unten), decke)});
        leiste.rechts = {&ok};
        beiEscape = &ok;
    }
    void beiAktivierung() override
    {
        ++aktivierungen;
        if (danach) {
            danach();
        }
    }
    void beiÖffnung() override
    {
        ++öffnungen;
        beiAktivierung();
    }
    void beiEntladen() override { ++entladungen; }

    Textfeld feld{*this, "feld"_t};
    Textfeld unten{*this, "unten"_t};
    Schaltfläche decke{*this, "decke"_t};
    Schaltfläche ok{*this, "ok"_t};
    int öffnungen = 0;
    int aktivierungen = 0;
    int entladungen = 0;
    std::function<void()> danach;
};

} // namespace

TEST(Bildschirmfolge, WasGeöffnetWirdRichtetSichEinmalEin)
{
    Bildschirmfolge folge;
    Probeschirm a("a");
    for (int runde = 1; runde <= 2; ++runde) {
        folge.zeige(a);
        folge.führeAktivierungenAus();
        EXPECT_EQ(a.öffnungen, runde);
        folge.sperre(a);
        folge.gibFrei(a);
        folge.führeAktivierungenAus();
        EXPECT_EQ(a.öffnungen, runde);
        EXPECT_EQ(a.aktivierungen, 2 * runde);
        folge.entlade(a);
    }
}

TEST(Bildschirmfolge, EinDialogSperrtSeinenRuferUndAntwortetWennErGeschlossenIst)
{
    Bildschirmfolge folge;
    Probeschirm a("a");
    Probeschirm b("b");
    bool warGeschlossen = false;
    folge.zeige(a);
    folge.öffneÜber(a, b, [&] { warGeschlossen = !folge.istGeladen(b) && folge.istFrei(a); });
    EXPECT_TRUE(folge.istSichtbar(a));
    EXPECT_FALSE(folge.istFrei(a));
    EXPECT_EQ(folge.inGebrauch(), &b);

    folge.schließe(b);
    EXPECT_TRUE(warGeschlossen);
    EXPECT_EQ(folge.inGebrauch(), &a);
    folge.führeAktivierungenAus();
    EXPECT_EQ(a.aktivierungen, 1);
    folge.schließe(b); // is no longer there
    EXPECT_EQ(b.entladungen, 1);
}

TEST(Bildschirmfolge, EineSeiteVerbirgtIhrenRuferUndEineAntwortKannWeiterführen)
{
    Bildschirmfolge folge;
    Probeschirm a("a");
    Probeschirm seite("seite");
    Probeschirm zweiter("zweiter");
    folge.zeige(a);
    folge.öffneStatt(a, seite);
    EXPECT_FALSE(folge.istSichtbar(a));
    Probeschirm erster("erster");
    folge.öffneÜber(seite, erster, [&] { folge.öffneÜber(seite, zweiter); });
    folge.verberge(seite);
    folge.schließe(erster);
    EXPECT_EQ(folge.inGebrauch(), &zweiter);
    EXPECT_FALSE(folge.istFrei(seite));
    folge.schließe(zweiter);
    EXPECT_EQ(folge.inGebrauch(), &seite);
    folge.schließe(seite);
    EXPECT_EQ(folge.inGebrauch(), &a);
    folge.schließe(a);
    EXPECT_EQ(folge.inGebrauch(), nullptr);
}

TEST(Bildschirmfolge, AktivierungFolgtNachDerAktionUndNurWenn)
{
    Bildschirmfolge folge;
    Probeschirm a("a");
    Probeschirm b("b");
    folge.zeige(a);
    EXPECT_EQ(a.aktivierungen, 0);
    folge.führeAktivierungenAus();
    EXPECT_EQ(a.aktivierungen, 1);

    folge.sperre(a);
    folge.zeige(b);
    folge.führeAktivierungenAus();
    EXPECT_EQ(folge.inGebrauch(), &b);
    EXPECT_EQ(a.aktivierungen, 1);

    folge.gibFrei(a);
    folge.entlade(b);
    EXPECT_EQ(b.entladungen, 1);
    folge.führeAktivierungenAus();
    EXPECT_EQ(a.aktivierungen, 2);
    EXPECT_EQ(folge.inGebrauch(), &a);
}

TEST(Bildschirmfolge, WerGleichVerborgenWirdWirdNichtAktiv)
{
    Bildschirmfolge folge;
    Probeschirm a("a");
    folge.zeige(a);
    folge.verberge(a);
    folge.führeAktivierungenAus();
    EXPECT_EQ(a.aktivierungen, 0);
    EXPECT_EQ(folge.inGebrauch(), nullptr);
}

TEST(Bildschirmfolge, ÜbergabeInDerAktivierungKommtAuchNochDran)
{
    Bildschirmfolge folge;
    Probeschirm a("a");
    Probeschirm b("b");
    a.danach = [&] {
        folge.sperre(a);
        folge.zeige(b);
    };
    folge.zeige(a);
    folge.führeAktivierungenAus();
    EXPECT_EQ(b.aktivierungen, 1);
    EXPECT_EQ(folge.finde("b"), &b);
}

TEST(Bildschirm, DeckeVerdecktSolangeSieZuSehenIst)
{
    Probeschirm a("a");
    EXPECT_TRUE(a.istVerdeckt(a.unten));
    EXPECT_FALSE(a.istVerdeckt(a.decke));
    EXPECT_FALSE(a.istErreichbar(a.unten));
    a.decke.verberge();
    EXPECT_TRUE(a.istErreichbar(a.unten));
}

TEST(Bildschirm, FeldDasNichtLosläßtBehältDenFokus)
{
    Probeschirm a("a");
    bool darf = false;
    a.feld.beiVerlassen = [&] { return darf; };
    a.fokussiereErstes();
    ASSERT_EQ(a.fokus(), &a.feld);
    EXPECT_FALSE(a.fokussiere(&a.ok));
    EXPECT_EQ(a.fokus(), &a.feld);
    darf = true;
    EXPECT_TRUE(a.fokussiere(&a.ok));
    EXPECT_EQ(a.fokus(), &a.ok);
}

TEST(Bildschirm, TabGehtInLeserichtungUndÜberspringtVerdecktes)
{
    Probeschirm a("a");
    a.fokussiereErstes();
    a.taste({.art = Taste::Art::Tab});
    EXPECT_EQ(a.fokus(), &a.decke);
    a.taste({.art = Taste::Art::Tab});
    EXPECT_EQ(a.fokus(), &a.ok);
    a.taste({.art = Taste::Art::Tab});
    EXPECT_EQ(a.fokus(), &a.feld);
    a.taste({.art = Taste::Art::RückTab});
    EXPECT_EQ(a.fokus(), &a.ok);
}

TEST(Bildschirm, EscapeDrücktSeineSchaltfläche)
{
    Probeschirm a("a");
    int gedrückt = 0;
    a.ok.beiKlick = [&] { ++gedrückt; };
    EXPECT_TRUE(a.taste({.art = Taste::Art::Esc}));
    EXPECT_FALSE(a.taste({.art = Taste::Art::Eingabe}));
    EXPECT_EQ(gedrückt, 1);
    a.ok.sperre();
    EXPECT_FALSE(a.taste({.art = Taste::Art::Esc}));
    EXPECT_EQ(gedrückt, 1);
}

TEST(Bildschirm, ElementeWerdenUnterIhremNamenGefunden)
{
    Probeschirm a("a");
    EXPECT_EQ(a.finde("feld"), &a.feld);
    EXPECT_EQ(a.finde("fehlt"), nullptr);
    EXPECT_EQ(a.feld.name(), "feld");
    EXPECT_EQ(&a.feld.bildschirm(), &a);
}

#include "platform/bildschirm/Bildschirm.h"

#include <gtest/gtest.h>

namespace {

Taste taste(Taste::Art art)
{
    return {.art = art};
}

Taste zeichen(char z)
{
    return {.art = Taste::Art::Zeichen, .zeichen = z};
}

} // namespace

TEST(Antwortfeld, DreiKlickeFührenZurückUndMeldenDreimal)
{
    Bildschirm schirm("frmProbe");
    triCtlJaNein feld(schirm, "feld");
    int änderungen = 0;
    feld.beiÄnderung = [&] { ++änderungen; };
    EXPECT_EQ(feld.text(), "k.A."_t);
    EXPECT_EQ(feld.hintergrund(), farbe::rot);
    feld.klicke();
    EXPECT_EQ(feld.text(), "ja"_t);
    EXPECT_EQ(feld.hintergrund(), farbe::weiß);
    feld.klicke();
    EXPECT_EQ(feld.text(), "nein"_t);
    EXPECT_EQ(feld.hintergrund(), farbe::grau);
    feld.klicke();
    EXPECT_EQ(feld.text(), "k.A."_t);
    EXPECT_EQ(änderungen, 3);
}

TEST(Antwortfeld, SchreibenVergleichtGenauUndMeldetNurÄnderungen)
{
    Bildschirm schirm("frmProbe");
    triCtlJaNein feld(schirm, "feld");
    int änderungen = 0;
    feld.setzeText("ja"_t);
    feld.beiÄnderung = [&] { ++änderungen; };
    feld.setzeText("ja"_t);
    EXPECT_EQ(änderungen, 0);
    feld.setzeText("Ja"_t);
    EXPECT_EQ(feld.text(), "k.A."_t);
    EXPECT_EQ(änderungen, 1);
}

TEST(Antwortfeld, PfeileGehenImKreis)
{
    Bildschirm schirm("frmProbe");
    triCtlJaNein feld(schirm, "feld");
    EXPECT_TRUE(feld.taste(taste(Taste::Art::Links)));
    EXPECT_EQ(feld.text(), "nein"_t);
    EXPECT_TRUE(feld.taste(taste(Taste::Art::Rechts)));
    EXPECT_EQ(feld.text(), "k.A."_t);
    EXPECT_FALSE(feld.taste(zeichen(' ')));
    EXPECT_EQ(feld.text(), "k.A."_t);
}

TEST(Auswahl, PfeileWählenNachbarnUndMelden)
{
    Bildschirm schirm("frmProbe");
    Auswahlfeld feld(schirm, "feld");
    feld.fülle({"eins", "zwei", "drei"}, "eins");
    int wahlen = 0;
    feld.beiWahl = [&] { ++wahlen; };
    feld.taste(taste(Taste::Art::Ab));
    EXPECT_EQ(feld.text(), "zwei");
    feld.taste(taste(Taste::Art::Ende));
    feld.taste(taste(Taste::Art::Ab));
    EXPECT_EQ(feld.text(), "drei");
    feld.taste(taste(Taste::Art::Auf));
    EXPECT_EQ(feld.text(), "zwei");
    EXPECT_EQ(wahlen, 3);
}

TEST(Auswahl, BuchstabeSpringtZumNächstenEintrag)
{
    Bildschirm schirm("frmProbe");
    Auswahlfeld feld(schirm, "feld");
    feld.fülle({"Anna", "Bert", "arg"}, "Anna");
    feld.taste(zeichen('a'));
    EXPECT_EQ(feld.text(), "arg");
    feld.taste(zeichen('A'));
    EXPECT_EQ(feld.text(), "Anna");
    feld.taste(zeichen('x'));
    EXPECT_EQ(feld.text(), "Anna");
}

TEST(Auswahl, ZeigtAuchFremdeTexte)
{
    Bildschirm schirm("frmProbe");
    Auswahlfeld feld(schirm, "feld");
    feld.fülle({"a", "b"}, "fremd");
    EXPECT_EQ(feld.text(), "fremd");
    feld.taste(taste(Taste::Art::Ab));
    EXPECT_EQ(feld.text(), "a");
}

TEST(Optionen, HöchstensEineIstMarkiert)
{
    Bildschirm schirm("frmProbe");
    Optionsgruppe gruppe;
    Optionsfeld a(schirm, "a");
    Optionsfeld b(schirm, "b");
    a.trittBei(gruppe);
    b.trittBei(gruppe);
    a.klicke();
    EXPECT_TRUE(a.istAn());
    b.taste(zeichen(' '));
    EXPECT_FALSE(a.istAn());
    EXPECT_TRUE(b.istAn());
    b.setze(false);
    EXPECT_FALSE(a.istAn());
    EXPECT_FALSE(b.istAn());
}

TEST(Listen, SortiertOhneGroßUndMitGrundbuchstabenStabil)
{
    Bildschirm schirm("frmProbe");
    Liste liste(schirm, "liste", {"Name", "Nr"});
    liste.setzeZeilen({verbinde("Zoe"_t, trenner, '1'), verbinde("Ärmel"_t, trenner, '2'),
                       verbinde("arm"_t, trenner, '3'), verbinde("Arm"_t, trenner, '4')});
    liste.wähle(1);
    liste.sortiereNach(1);
    EXPECT_EQ(liste.zelle(1, 2), "3");
    EXPECT_EQ(liste.zelle(2, 2), "4");
    EXPECT_EQ(liste.zelle(3, 2), "2");
    EXPECT_EQ(liste.auswahl(), 4U) << "die Auswahl bleibt bei ihrer Zeile";
    liste.setzeZeilen({});
    EXPECT_EQ(liste.auswahl(), 0U);
    EXPECT_EQ(liste.sortierteSpalte(), 0U);
}

TEST(Listen, ZellenJenseitsDerZeileSindLeer)
{
    Bildschirm schirm("frmProbe");
    Liste liste(schirm, "liste", {"a", "b", "c"});
    liste.setzeZeilen({verbinde("x"_t, trenner, 'y')});
    EXPECT_EQ(liste.zelle(1, 2), "y");
    EXPECT_EQ(liste.zelle(1, 3), "");
}

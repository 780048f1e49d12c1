#include "sprache/Szenariodatei.h"
#include "sprache/Unicode.h"

#include <gtest/gtest.h>

namespace {

Anweisung liesEine(std::string_view text)
{
    auto anweisungen = liesAnweisungen(text);
    EXPECT_EQ(anweisungen.size(), 1U);
    return anweisungen.at(0);
}

/// Line and expectation of the failure, "" where the text can be parsed.
std::string fehlerBei(std::string_view text)
{
    try {
        liesAnweisungen(text);
    } catch (const Sprachfehler& fehler) {
        return std::to_string(fehler.zeile()) + ": " + fehler.what();
    }
    return {};
}

TEST(Szenariodatei, WorteSindDurchLeerzeichenGetrennt)
{
    const auto anweisung = liesEine("  setze \t tbNachname   Adler \n");
    EXPECT_EQ(anweisung.form->wort, "setze");
    EXPECT_EQ(anweisung.argumente, (std::vector<std::u32string>{U"tbNachname", U"Adler"}));
}

TEST(Szenariodatei, InAnführungszeichenStehenLeerzeichenUndNichts)
{
    EXPECT_EQ(liesEine("setze tb \"a b\"").argument(1), U"a b");
    EXPECT_EQ(liesEine("setze tb \"\"").argument(1), U"");
    EXPECT_EQ(liesEine("setze tb \" \"").argument(1), U" ");
}

TEST(Szenariodatei, FluchtfolgenGeltenNurInAnführungszeichen)
{
    EXPECT_EQ(liesEine(R"(setze tb "a\nb\"c\\d\xB7\x80")").argument(1), U"a\nb\"c\\d\u00B7\u20AC");
    EXPECT_EQ(liesEine(R"(setze tb a\nb\xB7)").argument(1), U"a\\nb\\xB7");
    EXPECT_EQ(liesEine(R"(setze tb "\\n")").argument(1), U"\\n");
    EXPECT_EQ(liesEine(R"(setze tb "C:\Daten")").argument(1), U"C:\\Daten");
}

TEST(Szenariodatei, DerWagenrücklaufIstNurInGanzenDateienEineFluchtfolge)
{
    EXPECT_EQ(liesEine(R"(rohdatei a.txt "x\r\ny")").argument(1), U"x\r\ny");
    EXPECT_EQ(liesEine(R"(erwarte roh a.txt "x\r")").argument(1), U"x\r");
    EXPECT_EQ(liesEine(R"(setze tb "x\r")").argument(1), U"x\\r");
}

TEST(Szenariodatei, ZeilenEndenAnDerErstenAnderen)
{
    const auto anweisungen = liesAnweisungen("datei a.txt\n|eins· \n  |zwei\\xBF\\n\n|\nstarte\n");
    ASSERT_EQ(anweisungen.size(), 2U);
    EXPECT_EQ(anweisungen[0].zeilen, (std::vector<std::u32string>{U"eins\u00B7 ", U"zwei\u00BF\n", U""}));
    EXPECT_EQ(anweisungen[1].zeile, 5U);
}

TEST(Szenariodatei, KommentareUndLeereZeilenZählenNicht)
{
    const auto anweisungen = liesAnweisungen("\xEF\xBB\xBF# eins\r\n\r\n   # zwei\r\nstarte\r\n");
    ASSERT_EQ(anweisungen.size(), 1U);
    EXPECT_EQ(anweisungen[0].zeile, 4U);
    EXPECT_EQ(fehlerBei("datei a.txt\n# Kommentar\n|zu spät"), "3: eine Anweisung statt einer Zeile mit »|«");
}

TEST(Szenariodatei, OptionenStehenHinterDenArgumenten)
{
    const auto anweisung = liesEine("erwarte meldung symbol=info titel= symbol=stop knöpfe=OK");
    EXPECT_EQ(anweisung.argumente, (std::vector<std::u32string>{U"symbol=info"}));
    EXPECT_EQ(anweisung.optionen.at("titel"), U"");
    EXPECT_EQ(anweisung.optionen.at("symbol"), U"stop");
    EXPECT_EQ(liesEine(R"(erwarte meldung x titel="Tolvek7 v7.0.0")").optionen.at("titel"), U"Tolvek7 v7.0.0");
}

TEST(Szenariodatei, FelderEinesSatzesAuchMitLeerzeichen)
{
    const auto anweisung = liesEine(R"(klient 1 Nachname="von Adler" "Ort=Bad Ort" Status=)");
    EXPECT_EQ(anweisung.argumente,
              (std::vector<std::u32string>{U"1", U"Nachname=von Adler", U"Ort=Bad Ort", U"Status="}));
}

TEST(Szenariodatei, EinAnführungszeichenImWortIstEinZeichen)
{
    EXPECT_EQ(liesEine("setze tb 5\"3").argument(1), U"5\"3");
}

TEST(Szenariodatei, UnmöglichStehtNurVorHandlungenAnElementen)
{
    EXPECT_TRUE(liesEine("unmöglich klicke cmdOK").unmöglich);
    EXPECT_FALSE(liesEine("klicke cmdOK").unmöglich);
    EXPECT_EQ(fehlerBei("unmöglich starte"), "1: eine Handlung an einem Element hinter »unmöglich«");
    EXPECT_EQ(fehlerBei("unmöglich erwarte text a b"), "1: eine Handlung an einem Element hinter »unmöglich«");
}

TEST(Szenariodatei, WasKeineAnweisungIstWirdMitZeileGemeldet)
{
    EXPECT_EQ(fehlerBei("starte\n\nklikke cmdOK"), "3: eine Anweisung statt »klikke«");
    EXPECT_EQ(fehlerBei("erwarte nichts"), "1: eine Anweisung statt »erwarte nichts«");
    EXPECT_EQ(fehlerBei("klicke"), "1: den Namen eines Elements");
    EXPECT_EQ(fehlerBei("klicke lvw 1 2"), "1: Zeilenende statt »2«");
    EXPECT_EQ(fehlerBei("klicke lvw eins"), "1: eine ganze Zahl statt »eins«");
    EXPECT_EQ(fehlerBei("heute 31.02.2007"), "1: ein Datum TT.MM.JJJJ statt »31.02.2007«");
    EXPECT_EQ(fehlerBei("heute 1.2.2007"), "1: ein Datum TT.MM.JJJJ statt »1.2.2007«");
    EXPECT_EQ(fehlerBei("antworte Vielleicht"), "1: OK, Abbrechen, Ja oder Nein statt »Vielleicht«");
    EXPECT_EQ(fehlerBei("schließe fenster"), "1: »rahmen« statt »fenster«");
    EXPECT_EQ(fehlerBei("tippe tb {Enter}"), "1: Zeichen und Sondertasten wie {Rück} statt »{Enter}«");
    EXPECT_EQ(fehlerBei("setze tb \"offen"), "1: schließendes Anführungszeichen");
    EXPECT_EQ(fehlerBei("setze tb \"a\"b"), "1: Leerzeichen oder Zeilenende hinter dem Anführungszeichen");
    EXPECT_EQ(fehlerBei(R"(setze tb "\xG0")"), "1: zwei Hexziffern hinter \\x");
    EXPECT_EQ(fehlerBei("erwarte meldung a symbol=blau"),
              "1: symbol= einer der Werte keins, info, warnung, stop, frage");
    EXPECT_EQ(fehlerBei("klient 1 Adler"), "1: FELD=TEXT statt »Adler«");
    EXPECT_EQ(fehlerBei("setze tb \xFF"), "0: Text in UTF-8");
}

TEST(Szenariodatei, EineFehlendeDateiIstEinSprachfehler)
{
    EXPECT_THROW(liesSzenario("gibt-es-nicht.szenario"), Sprachfehler);
    EXPECT_THROW(liesSzenario(std::filesystem::temp_directory_path()), Sprachfehler);
}

TEST(Szenariodatei, JedesWortIstEinmalDa)
{
    for (const auto& form : anweisungsformen()) {
        EXPECT_EQ(findeForm(form.wort), &form) << form.wort;
    }
}

TEST(Unicode, WasDieCodepageNichtHatWirdAbgewiesen)
{
    EXPECT_EQ(alsTabellentext(U"ä\u20AC\u00B7"), "\xE4\x80\xB7");
    EXPECT_THROW(alsTabellentext(U"ć"), Zeichenfehler);
    EXPECT_EQ(alsUtf8(std::u32string_view(U"aä\u20AC\U0001F600")), "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
}

} // namespace

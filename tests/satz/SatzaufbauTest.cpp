#include "satz/Satzaufbau.h"
#include "hilfen/Abnahme.h"
#include "hilfen/Testumgebung.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "satz/Satzgrenzen.h"
#include "satz/moHelferlein.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

const std::map<std::string, Feldart>& feldarten()
{
    using enum Feldart;
    static const std::map<std::string, Feldart> arten{
        {"idKern", idKern}, {"idBetr", idBetr},   {"datum", datum},     {"option", option},     {"zuvor", zuvor},
        {"kinder", kinder}, {"zahl", zahl},       {"nation", nation},   {"kontakte", kontakte}, {"hdOhne", hdOhne},
        {"memo", memo},     {"hdAlter", hdAlter}, {"icd0000", icd0000}, {"ivKonsum", ivKonsum}, {"icdPsy", icdPsy},
        {"text", text},     {"leer", leer},       {"icdNeu", icdNeu}};
    return arten;
}

const std::map<std::string, Werteliste>& wertelisten()
{
    static const std::map<std::string, Werteliste> listen{{"kurz", werte::kurz},
                                                          {"lang", werte::lang},
                                                          {"geschlecht", werte::geschlecht},
                                                          {"betrGru", werte::betrGru},
                                                          {"angeho", werte::angeho},
                                                          {"problem", werte::problem},
                                                          {"vermitt", werte::vermitt},
                                                          {"auflagen1", werte::auflagen1},
                                                          {"auflagen2", werte::auflagen2},
                                                          {"substitut", werte::substitut},
                                                          {"famSta", werte::famSta},
                                                          {"partner", werte::partner},
                                                          {"wohnung", werte::wohnung},
                                                          {"schule", werte::schule},
                                                          {"ausbild", werte::ausbild},
                                                          {"erwerb", werte::erwerb},
                                                          {"schulden", werte::schulden},
                                                          {"test", werte::test},
                                                          {"artEnd1", werte::artEnd1},
                                                          {"artEnd2", werte::artEnd2},
                                                          {"hepatitisC", werte::hepatitisC},
                                                          {"konsumart", werte::konsumart},
                                                          {"problEnde", werte::problEnde},
                                                          {"icdZusatz", werte::icdZusatz},
                                                          {"essst\xF6rung", werte::essstörung}};
    return listen;
}

/// "K16", "D124"; empty for a field that is not exported.
std::string quelle(const Satzfeld& feld)
{
    return feld.blatt == 0 ? std::string() : feld.blatt + std::to_string(feld.spalte);
}

template <class Wert, class Gleich>
std::string nameVon(const std::map<std::string, Wert>& namen, const Gleich& istGemeint)
{
    const auto ort =
        std::find_if(namen.begin(), namen.end(), [&](const auto& paar) { return istGemeint(paar.second); });
    return ort == namen.end() ? std::string() : ort->first;
}

/// One line for each field: number;name;source;kind;list;default.
void prüfeGegenListe(const std::vector<Satzfeld>& felder, const std::string& datei)
{
    std::string text;
    for (std::size_t i = 0; i < felder.size(); ++i) {
        const auto& feld = felder[i];
        const auto art = nameVon(feldarten(), [&](Feldart a) { return a == feld.art; });
        const auto liste = nameVon(wertelisten(), [&](Werteliste w) { return w.data() == feld.werte.data(); });
        EXPECT_FALSE(art.empty()) << datei << ": the test has no name for the kind of field " << i + 1;
        EXPECT_EQ(liste.empty(), feld.werte.empty())
            << datei << ": the test has no name for the list of field " << i + 1;
        text += verbinde(std::to_string(i + 1), ';', feld.name, ';', quelle(feld), ';', art, ';', liste, ';',
                         feld.vorgabe, '\n');
    }
    vergleicheMitAbnahme("satz/" + datei, text);
}

TEST(Satzaufbau, BetreuungsfelderStimmenMitDerListe)
{
    prüfeGegenListe(betreuungsfelder(), "Betreuungsfelder.txt");
}

TEST(Satzaufbau, DiagnosefelderStimmenMitDerListe)
{
    prüfeGegenListe(diagnosefelder(), "Diagnosefelder.txt");
}

/// Only what says one thing together shares a column: the reasons, the ways of use, the main diagnosis and its age.
TEST(Satzaufbau, ZweiFelderTreffenSichInKeinerSpalte)
{
    const std::set gemeinsame{Feldart::hdOhne, Feldart::ivKonsum, Feldart::icd0000, Feldart::hdAlter};
    std::map<std::string, const Satzfeld*> belegte;
    for (const auto* felder : {&betreuungsfelder(), &diagnosefelder()}) {
        for (std::size_t i = 0; i < felder->size(); ++i) {
            const auto& feld = (*felder)[i];
            const auto [ort, istNeu] = belegte.try_emplace(quelle(feld), &feld);
            const bool darf = quelle(feld).empty() || (ort->second->art == feld.art && gemeinsame.contains(feld.art));
            EXPECT_TRUE(istNeu || darf) << "field " << i + 1 << " (" << feld.name << ") and " << ort->second->name
                                        << " of another place both go to " << quelle(feld);
        }
    }
}

/// The most that a choice, a number or a nation puts into a field.
std::size_t höchstlänge(const Satzfeld& feld)
{
    constexpr std::size_t kurzerText = 20; // dates, ids, flags, codes of diagnoses
    std::size_t länge = std::max(kurzerText, feld.vorgabe.size());
    for (const auto& text : auswahlliste(feld)) {
        länge = std::max(länge, text.size());
    }
    return länge + 1;
}

TEST(Satzgrenzen, DerLängsteSatzPaßtInEineZeile)
{
    std::size_t betreuung = satzgrenze::memolänge;
    for (const auto& feld : betreuungsfelder()) {
        betreuung += höchstlänge(feld);
    }
    EXPECT_LT(betreuung, satzgrenze::zeilenlänge);
    EXPECT_LT(satzgrenze::memolänge + klientenfelder().size() * (satzgrenze::eingabelänge + 1),
              satzgrenze::zeilenlänge);
}

/// The whole list with texts and codes, in order.
TEST(Wertelisten, StimmenMitDerListe)
{
    std::string text;
    for (const auto& [name, liste] : wertelisten()) {
        text += verbinde('[', name, "]\n");
        for (const auto& paar : liste) {
            text += verbinde(paar.code, '=', paar.text, '\n');
        }
    }
    vergleicheMitAbnahme("satz/Wertelisten.txt", text);
}

/// Rules that every list has to keep, whatever it holds.
TEST(Wertelisten, RegelnAllerListen)
{
    for (const auto& [name, liste] : wertelisten()) {
        std::set<std::string_view> texte;
        std::set<std::string_view> codes;
        for (const auto& paar : liste) {
            EXPECT_TRUE(texte.insert(paar.text).second) << name << ": text twice: " << paar.text;
            EXPECT_EQ(codes.insert(paar.code).second, !paar.frühere) << name << ": code twice: " << paar.code;
            EXPECT_EQ(paar.text.find(trenner), std::string_view::npos) << name << ": delimiter in: " << paar.text;
            EXPECT_EQ(paar.text, getrimmt(paar.text)) << name << ": blanks around: " << paar.text;
            EXPECT_EQ(*werte::codeZu(liste, paar.text), paar.code) << name;
            EXPECT_EQ(*werte::textZu(liste, paar.code) == paar.text, !paar.frühere) << name;
        }
        EXPECT_EQ(werte::codeZu(liste, "gibt es nicht"_t), nullptr) << name;
        EXPECT_EQ(werte::textZu(liste, "77"_t), nullptr) << name;
    }
}

TEST(Wertelisten, FindenDieHeutigeSchreibweise)
{
    constexpr std::array liste{Wertepaar{"nein"_t, "1"_t}, Wertepaar{"ja"_t, "2"_t}, Wertepaar{"j"_t, "2"_t, true}};
    EXPECT_EQ(werte::heutige(liste, "j"_t), "ja");
    EXPECT_EQ(werte::heutige(liste, "nein"_t), "nein");
    EXPECT_EQ(werte::heutige(liste, "vielleicht"_t), "vielleicht");
}

TEST(Wertelisten, VergleichenGenau)
{
    EXPECT_EQ(werte::codeZu(werte::kurz, "K.A."_t), nullptr);
    EXPECT_EQ(werte::codeZu(werte::schulden, "bis10.000 €"_t), nullptr);
    EXPECT_EQ(*werte::codeZu(werte::schulden, "bis 10.000 €"_t), "2");
}

TEST(Wertelisten, ListenFürAuswahlfelder)
{
    EXPECT_EQ(werte::texte(werte::kurz), (std::vector<std::string>{"k.A.", "nein", "ja"}));
    EXPECT_EQ(werte::zahlen("k.A."_t, {0, 3}), (std::vector<std::string>{"k.A.", "0", "1", "2", "3"}));
    EXPECT_EQ(werte::zahlen("k.A."_t, {1, 99}).size(), 100U);
}

/// An answer that nobody gave has the first entry of its list, with the one exception that is to stay.
TEST(Satzaufbau, VorgabenSindDerErsteEintrag)
{
    for (const auto& feld : betreuungsfelder()) {
        if (feld.art == Feldart::option && feld.name != "Vermitt") {
            EXPECT_EQ(feld.vorgabe, feld.werte.front().text) << feld.name;
        }
    }
    EXPECT_EQ(betreuungsfelder()[12].vorgabe, werte::vermitt[1].text);
}

TEST(Satzaufbau, NamenFindenFelder)
{
    std::set<std::string> namen;
    for (std::size_t i = 0; i < betreuungsfelder().size(); ++i) {
        const auto& name = betreuungsfelder()[i].name;
        EXPECT_TRUE(namen.insert(name).second) << name;
        EXPECT_EQ(betreuungsfeld(name), static_cast<int>(i + 1));
    }
    EXPECT_EQ(betreuungsfeld("Vermitt"_t), 13);
    EXPECT_EQ(betreuungsfeld("Vermitt1"_t), 169);
    EXPECT_EQ(betreuungsfeld("vermitt1"_t), 0);
    EXPECT_EQ(betreuungsfeld(""_t), 0);
}

/// The names of positions and the table are one thing; these are what the records of a facility hold.
TEST(Satzaufbau, StellenHeißenWieImSatz)
{
    EXPECT_EQ(feld::kern::kernID, 2);
    EXPECT_EQ(feld::kern::geburtsdatum, 10);
    EXPECT_EQ(feld::kern::anzahl, 11);
    EXPECT_EQ(feld::betr::beginn, 3);
    EXPECT_EQ(feld::betr::ende, 4);
    EXPECT_EQ(feld::betr::migrant + 1, betreuungsfeld("Migrant2"_t));
    EXPECT_EQ(feld::betr::kontakte, 164);
    EXPECT_EQ(feld::betr::memo, 192);
    EXPECT_EQ(feld::betr::anzahl, static_cast<int>(betreuungsfelder().size()));
    EXPECT_EQ(feld::diag::weitere(12), 246);
    EXPECT_EQ(feld::diag::bitfeld, 247);
    EXPECT_EQ(feld::diag::anzahl, static_cast<int>(diagnosefelder().size()));
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        EXPECT_EQ(feld::diag::gruppeVon(feld::diag::antwort(gruppe, HDMarke)), gruppe);
        EXPECT_EQ(feld::diag::platzVon(feld::diag::antwort(gruppe, HDMarke)), HDMarke);
    }
}

/// An older spelling is one row of its list: records that hold it are read and exported, nothing new gets it.
TEST(Wertelisten, FrühereSchreibweiseWirdGelesenUndNichtAngeboten)
{
    constexpr std::array liste{Wertepaar{"keine Angaben"_t, "0"_t}, Wertepaar{"Führerschein"_t, "1"_t},
                               Wertepaar{"Fuehrerschein"_t, "1"_t, true}};
    EXPECT_EQ(*werte::codeZu(liste, "Fuehrerschein"_t), "1");
    EXPECT_EQ(*werte::codeZu(liste, "Führerschein"_t), "1");
    EXPECT_EQ(*werte::textZu(liste, "1"_t), "Führerschein"_t);
    EXPECT_EQ(werte::texte(liste), (std::vector<std::string>{"keine Angaben", std::string("Führerschein"_t)}));
}

TEST(Satzaufbau, KlientenfelderInIhrerOrdnung)
{
    const std::vector<std::string> namen{"",    "kernID", "betrao",     "Nachname",     "Vorname", "Strasse",
                                         "PLZ", "Ort",    "Geschlecht", "Geburtsdatum", "memoK"};
    ASSERT_EQ(klientenfelder().size(), namen.size());
    for (std::size_t i = 0; i < namen.size(); ++i) {
        EXPECT_EQ(klientenfelder()[i].name, namen[i]);
        EXPECT_EQ(klientenfelder()[i].art, Feldart::klient);
    }
}

TEST(Vorgaben, KlientHatElfTrenner)
{
    EXPECT_EQ(erstelleDefaultKernDS(), "········keine Angaben·unbekannt··"_t);
    EXPECT_EQ(anzahlFelder(erstelleDefaultKernDS()), 12);
}

TEST(Vorgaben, BetreuungHat192Felder)
{
    const auto satz = erstelleDefaultBetrDS();
    EXPECT_EQ(anzahlFelder(satz), 192);
    EXPECT_EQ(felder(satz, 1, 5), "1·1·02.08.2007·02.08.2007·k.A.·"_t);
    EXPECT_EQ(felder(satz, 141, 144), "k.A.·0·0·keine Angaben·"_t);
    EXPECT_EQ(felder(satz, 150, 156), "Wahr·Falsch·Falsch·Falsch·Falsch·Falsch·keine Angaben·"_t);
    EXPECT_EQ(felder(satz, 160, 164), "Wahr·Falsch·Falsch·Falsch·k.A.·"_t);
    EXPECT_EQ(getFeld(satz, 192), "");
    EXPECT_EQ(satz.back(), trenner);
}

TEST(Vorgaben, DiagnoseHatNurTrenner)
{
    EXPECT_EQ(erstelleDefaultDiagDS(), std::string(246, trenner));
}

TEST(Satzaufbau, DiagnosefeldRechnetDieGruppen)
{
    EXPECT_EQ(feld::diag::antwort(1, 1), 3);
    EXPECT_EQ(feld::diag::antwort(1, 8), 10);
    EXPECT_EQ(feld::diag::antwort(24, 4), 190);
    EXPECT_EQ(feld::diag::antwort(29, 8), 234);
}

} // namespace

#include "satz/Wertpruefung.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Diagnosesatz.h"
#include "satz/WeitereDiagnosen.h"
#include "satz/moNationen.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr auto keineAngabe = "k.A."_t;
constexpr int letztesBlockfeld = diagnosefeld(höchsteGruppe, felderJeGruppe);
constexpr int ersteWeitereDiagnose = letztesBlockfeld + 1;
constexpr int bitfeld = letztesBlockfeld + anzahlWeitereDiagnosen + 1;

bool istIn(Werteliste liste, std::string_view wert)
{
    return werte::codeZu(liste, wert) != nullptr;
}

/// Digits alone: blanks or a sign in front are nothing that the program writes.
bool istZahlIn(werte::Zahlenbereich bereich, std::string_view wert)
{
    int zahl = 0;
    const auto [ende, fehler] = std::from_chars(wert.data(), wert.data() + wert.size(), zahl);
    return fehler == std::errc() && ende == wert.data() + wert.size() && zahl >= bereich.von && zahl <= bereich.bis;
}

bool istFlagge(std::string_view wert)
{
    const auto wort = klein(wert);
    return wort == "wahr" || wort == "falsch";
}

bool hat(const std::vector<Satzfeld>& felder, int feld)
{
    return feld >= 1 && static_cast<std::size_t>(feld) <= felder.size();
}

const Satzfeld& von(const std::vector<Satzfeld>& felder, int feld)
{
    return felder[static_cast<std::size_t>(feld - 1)];
}

/// The digits of an ICD code are stored without their text.
bool istIcdStelle(const Satzfeld& feld, std::string_view wert)
{
    return werte::textZu(feld.werte, wert) != nullptr;
}

/// Older records leave the infections empty, which the export takes as no answer.
bool istInfektion(const Satzfeld& feld)
{
    return feld.werte.data() == werte::test.data() || feld.werte.data() == werte::hepatitisC.data();
}

bool istBlockwert(int gruppe, int platz, const Satzfeld& feld, std::string_view wert)
{
    if (istLeerwert(gruppe, platz, wert) || wert == keineAngabe) {
        return true;
    }
    switch (feld.art) {
    case Feldart::option:
        return istIn(feld.werte, wert) || (platz == ICDStelle4 && istIcdStelle(feld, wert));
    case Feldart::zahl:
        return istZahlIn(platz == AlterStörung ? werte::alter : werte::konsumtage, wert);
    case Feldart::hdAlter:
        return istZahlIn(werte::alter, wert);
    case Feldart::icd0000:
        return wert == "1";
    default:
        return false; // nothing is asked here
    }
}

} // namespace

bool istKlientenwert(int feld, std::string_view wert)
{
    if (!hat(klientenfelder(), feld)) {
        return true;
    }
    const auto& satzfeld = von(klientenfelder(), feld);
    return feld == 1 ? wert.empty() : satzfeld.werte.empty() || istIn(satzfeld.werte, wert);
}

bool istBetreuungswert(int feld, std::string_view wert)
{
    if (!hat(betreuungsfelder(), feld)) {
        return true;
    }
    const auto& satzfeld = von(betreuungsfelder(), feld);
    const auto istZahl = [&](werte::Zahlenbereich bereich) {
        return wert == satzfeld.vorgabe || istZahlIn(bereich, wert);
    };
    switch (satzfeld.art) {
    case Feldart::option:
        return istIn(satzfeld.werte, wert) || (wert.empty() && istInfektion(satzfeld));
    case Feldart::zuvor:
        return istZahl(werte::maßnahmen);
    case Feldart::kinder:
        return istZahl(werte::kinder);
    case Feldart::kontakte:
        return istZahl(werte::kontakte);
    case Feldart::zahl:
        return istZahl(werte::unterhalt);
    case Feldart::nation:
        return wert == satzfeld.vorgabe || istNation(wert);
    case Feldart::hdOhne:
    case Feldart::ivKonsum:
        return istFlagge(wert);
    default:
        return true;
    }
}

bool istDiagnosewert(int feld, std::string_view wert)
{
    if (feld < diagnosefeld(1, 1) || feld >= bitfeld) {
        return true;
    }
    if (feld >= ersteWeitereDiagnose) {
        return istWeitereDiagnose(feld - letztesBlockfeld, wert);
    }
    const int ort = feld - diagnosefeld(1, 1);
    return istBlockwert(ort / felderJeGruppe + 1, ort % felderJeGruppe + 1, von(diagnosefelder(), feld), wert);
}

Feldart betreuungsfeldart(int feld)
{
    return hat(betreuungsfelder(), feld) ? von(betreuungsfelder(), feld).art : Feldart::klient;
}

Feldart diagnosefeldart(int feld)
{
    return hat(diagnosefelder(), feld) ? von(diagnosefelder(), feld).art : Feldart::klient;
}

std::string_view klientenfeldname(int feld)
{
    return hat(klientenfelder(), feld) ? std::string_view(von(klientenfelder(), feld).name) : std::string_view();
}

std::string_view betreuungsfeldname(int feld)
{
    return hat(betreuungsfelder(), feld) ? std::string_view(von(betreuungsfelder(), feld).name) : std::string_view();
}

Diagnosefeldname diagnosefeldname(int feld)
{
    constexpr std::array<std::string_view, felderJeGruppe> fragen{
        "Konsumart"_t,        "Konsumtage vor Beginn"_t, "Konsumtage vor Ende"_t, "ICD Stelle 4+5"_t,
        "Alter bei Beginn"_t, "Riskanter Konsum"_t,      "Alter Erstkonsum"_t,    "Hauptdiagnose"_t};
    if (feld == bitfeld) {
        return {"Bitfeld"_t, {}};
    }
    if (!hat(diagnosefelder(), feld)) {
        return {};
    }
    if (feld < diagnosefeld(1, 1) || feld > letztesBlockfeld) {
        return {von(diagnosefelder(), feld).name, {}};
    }
    const int ort = feld - diagnosefeld(1, 1);
    return {gruppenname(ort / felderJeGruppe + 1), fragen.at(static_cast<std::size_t>(ort % felderJeGruppe))};
}

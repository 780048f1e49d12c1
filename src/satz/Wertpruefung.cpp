#include "satz/Wertpruefung.h"
#include "satz/Auswahllisten.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Diagnosesatz.h"
#include "satz/Klientenfelder.h"
#include "satz/moNationen.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr auto keineAngabe = "k.A."_t;

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

/// The digits of an ICD code are stored without their text.
bool istIcdStelle(const Satzfeld& feld, std::string_view wert)
{
    return werte::textZu(feld.werte, wert) != nullptr;
}

/// Older records leave the infections empty, which the export takes as no answer.
bool istInfektion(const Satzfeld& feld)
{
    return feld.hatListe(werte::test) || feld.hatListe(werte::hepatitisC);
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
    case Feldart::hdAlter:
        return istZahlIn(antwortbereich(platz), wert);
    case Feldart::icd0000:
        return wert == "1";
    default:
        return false; // nothing is asked here
    }
}

} // namespace

bool istKlientenwert(int feld, std::string_view wert)
{
    const auto& satzfeld = feldOderNichts(klientenfelder(), feld);
    return feld == feld::kern::leer ? wert.empty() : satzfeld.werte.empty() || istIn(satzfeld.werte, wert);
}

bool istBetreuungswert(int feld, std::string_view wert)
{
    const auto& satzfeld = feldOderNichts(betreuungsfelder(), feld);
    if (const auto bereich = zahlenbereich(satzfeld.art)) {
        return wert == satzfeld.vorgabe || istZahlIn(*bereich, wert);
    }
    switch (satzfeld.art) {
    case Feldart::option:
        return istIn(satzfeld.werte, wert) || (wert.empty() && istInfektion(satzfeld));
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
    using namespace feld::diag;
    if (istAntwort(feld)) {
        return istBlockwert(gruppeVon(feld), platzVon(feld), feldAus(diagnosefelder(), feld), wert);
    }
    return feld < ersteAntwort || feld >= bitfeld || istWeitereDiagnose(feld - weitere(0), wert);
}

const Satzfeld& feldOderNichts(const std::vector<Satzfeld>& felder, int feld)
{
    static const Satzfeld nichts;
    return feld >= 1 && static_cast<std::size_t>(feld) <= felder.size() ? feldAus(felder, feld) : nichts;
}

std::string diagnosefeldname(int feld)
{
    constexpr std::array<std::string_view, felderJeGruppe> fragen{
        "Konsumart"_t,        "Konsumtage vor Beginn"_t, "Konsumtage vor Ende"_t, "ICD Stelle 4+5"_t,
        "Alter bei Beginn"_t, "Riskanter Konsum"_t,      "Alter Erstkonsum"_t,    "Hauptdiagnose"_t};
    using namespace feld::diag;
    if (feld == bitfeld) {
        return std::string("Bitfeld"_t);
    }
    if (!istAntwort(feld)) {
        return feldOderNichts(diagnosefelder(), feld).name;
    }
    return verbinde(gruppenname(gruppeVon(feld)), ", "_t, fragen.at(static_cast<std::size_t>(platzVon(feld) - 1)));
}

#include "store/Feldpruefung.h"

#include "platform/text/Zahl.h"
#include "satz/Diagnosesatz.h"
#include "satz/Klientenfelder.h"
#include "satz/moNationen.h"
#include "store/moBereinigeDatum.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

using namespace befundart;

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

/// Older records leave the infections empty, which the export takes as no answer.
bool istInfektion(const Satzfeld& feld)
{
    return feld.hatListe(werte::test) || feld.hatListe(werte::hepatitisC);
}

bool istBetreuungswert(const Satzfeld& feld, std::string_view wert)
{
    if (const auto bereich = zahlenbereich(feld.art)) {
        return wert == feld.vorgabe || istZahlIn(*bereich, wert);
    }
    switch (feld.art) {
    case Feldart::option:
        return istIn(feld.werte, wert) || (wert.empty() && istInfektion(feld));
    case Feldart::nation:
        return wert == feld.vorgabe || !getCodeZuNation(wert).empty();
    case Feldart::hdOhne:
    case Feldart::ivKonsum:
        return istFlagge(wert);
    default:
        return true;
    }
}

bool istBlockwert(int gruppe, int platz, const Satzfeld& feld, std::string_view wert)
{
    if (istLeerwert(gruppe, platz, wert) || wert == antworttext::keine) {
        return true;
    }
    switch (feld.art) {
    case Feldart::option: // the digits of an ICD code are stored without their text
        return istIn(feld.werte, wert) || (platz == ICDStelle4 && werte::textZu(feld.werte, wert) != nullptr);
    case Feldart::zahl:
    case Feldart::hdAlter:
        return istZahlIn(antwortbereich(platz), wert);
    case Feldart::icd0000:
        return wert == "1";
    default:
        return false; // nothing is asked here
    }
}

bool istDiagnosewert(int nummer, const Satzfeld& feld, std::string_view wert)
{
    using namespace feld::diag;
    if (istAntwort(nummer)) {
        return istBlockwert(gruppeVon(nummer), platzVon(nummer), feld, wert);
    }
    return nummer < ersteAntwort || nummer >= bitfeld || istWeitereDiagnose(nummer - weitere(0), wert);
}

/// Whether the value is one that the program writes into the field: from its list, its range of numbers, its default,
/// or what stands for an answer not given. Free texts, keys, dates and the bit field have rules of their own.
bool istWert(Tabelle tabelle, int nummer, std::string_view wert)
{
    const auto& feld = feldAus(satzfelder(tabelle), nummer);
    switch (tabelle) {
    case Tabelle::Betr:
        return istBetreuungswert(feld, wert);
    case Tabelle::Diag:
        return istDiagnosewert(nummer, feld, wert);
    default:
        return nummer == feld::kern::leer ? wert.empty() : feld.werte.empty() || istIn(feld.werte, wert);
    }
}

struct Wertfolge {
    Tabelle tabelle;
    Feldart art;
    std::string_view folge;
};

constexpr auto wirdGemeldet = "wird unverändert angezeigt; der Export meldet ihn und hat dort keinen richtigen Wert"_t;
constexpr std::array wertfolgen{
    Wertfolge{Tabelle::Kern, Feldart::klient, wirdGemeldet},
    Wertfolge{Tabelle::Betr, Feldart::option, wirdGemeldet},
    Wertfolge{Tabelle::Betr, Feldart::nation, "wird unverändert angezeigt; der Export läßt die Spalte leer"_t},
    Wertfolge{Tabelle::Betr, Feldart::hdOhne, "gilt als Falsch"_t},
    Wertfolge{Tabelle::Betr, Feldart::ivKonsum, "gilt als Falsch"_t},
    Wertfolge{Tabelle::Diag, Feldart::option, "der Export meldet ihn oder gibt einen anderen Wert aus"_t},
    Wertfolge{Tabelle::Diag, Feldart::icd0000, "gilt im Export nicht als Hauptdiagnose"_t},
    Wertfolge{Tabelle::Diag, Feldart::leer, "wird nicht exportiert; der Problembereich gilt als belegt"_t},
};

/// What becomes of a value that no list has; empty: it goes its way unchanged.
std::string_view folgeFürWert(Tabelle tabelle, int nummer)
{
    if (tabelle == Tabelle::Kern && nummer == feld::kern::leer) {
        return "wird nicht gelesen, ein OK leert das Feld"_t;
    }
    const auto art = feldAus(satzfelder(tabelle), nummer).art;
    const auto ort = std::ranges::find_if(
        wertfolgen, [&](const Wertfolge& folge) { return folge.tabelle == tabelle && folge.art == art; });
    return ort == wertfolgen.end() ? std::string_view() : ort->folge;
}

bool istBelegt(const Satzzeile& satz, int gruppe)
{
    for (int platz = 1; platz <= felderJeGruppe; ++platz) {
        if (!istLeerwert(gruppe, platz, satz.feld(feld::diag::antwort(gruppe, platz)))) {
            return true;
        }
    }
    return false;
}

/// Bits that belong to no group. A sum of bits of groups can only become negative, never have others.
bool hatFremdeBits(std::int64_t bits)
{
    return bits % gruppenbit(1) != 0 || bits >= gruppenbit(höchsteGruppe + 1);
}

std::string_view folgeFürDatum(Tabelle tabelle, bool wirdErgänzt)
{
    if (wirdErgänzt) {
        return "der nächste Start ergänzt ein Jahr, ein Datum wird nicht daraus"_t;
    }
    return tabelle == Tabelle::Kern
               ? "der Export meldet es, das Formular zeigt \"unbekannt\""_t
               : "Export und Bearbeiten des Zeitraums enden mit einer Meldung oder einem Laufzeitfehler"_t;
}

} // namespace

void prüfeWerte(const Satzzeile& satz)
{
    const auto bekannte = static_cast<int>(satzfelder(satz.tabelle).size());
    for (int feld = 1; feld <= bekannte && satz.hat(feld); ++feld) {
        if (!istWert(satz.tabelle, feld, satz.feld(feld))) {
            satz.melde(WertUnbekannt, feld, alsZitat(satz.feld(feld)), folgeFürWert(satz.tabelle, feld));
        }
    }
}

void prüfeBitfeld(const Satzzeile& satz)
{
    const auto text = getrimmt(satz.feld(feld::diag::bitfeld));
    if (text.empty()) {
        return; // that of an imported record: its groups are those with answers
    }
    const auto bits = leseGanzzahl64(text);
    if (!bits) {
        satz.melde(BitfeldKeineZahl, feld::diag::bitfeld, alsZitat(text));
        return;
    }
    if (hatFremdeBits(*bits)) {
        satz.melde(BitfeldFremd, feld::diag::bitfeld, alsZitat(text));
    }
    if (*bits < 0) {
        satz.melde(BitfeldNegativ, feld::diag::bitfeld, alsZitat(text));
    }
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        if (!hatBit(*bits, gruppe) && istBelegt(satz, gruppe)) {
            satz.melde(BitFehlt, feld::diag::bitfeld, gruppenname(gruppe));
        }
    }
}

std::optional<Datum> prüfeDatum(const Satzzeile& satz, int feld, std::string_view ausnahme)
{
    const auto text = satz.feld(feld);
    if (!satz.hat(feld) || (!ausnahme.empty() && text == ausnahme)) {
        return std::nullopt;
    }
    const auto datum = leseDatum(text);
    const bool wirdErgänzt = satz.hat(feld + 1) && hatKurzesJahr(text);
    if (!datum) {
        satz.melde(DatumUngültig, feld, alsZitat(text), folgeFürDatum(satz.tabelle, wirdErgänzt));
    } else if (wirdErgänzt) {
        satz.melde(DatumZweistellig, feld, alsZitat(text));
    }
    return datum;
}

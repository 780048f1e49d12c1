#include "store/Feldpruefung.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Diagnosesatz.h"
#include "satz/Klientenfelder.h"
#include "satz/Wertpruefung.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

bool istWert(Tabelle tabelle, int feld, std::string_view wert)
{
    switch (tabelle) {
    case Tabelle::Betr:
        return istBetreuungswert(feld, wert);
    case Tabelle::Diag:
        return istDiagnosewert(feld, wert);
    default:
        return istKlientenwert(feld, wert);
    }
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

/// An empty bit field is that of an imported record: its groups are those with answers.
void prüfeFehlendeBits(const Satzzeile& satz, std::int64_t bits, Befundliste& befunde)
{
    for (int gruppe = 1; gruppe <= höchsteGruppe; ++gruppe) {
        if (!hatBit(bits, gruppe) && istBelegt(satz, gruppe)) {
            befunde.melde(Befundart::BitFehlt, satz.ort(feld::diag::bitfeld), gruppenname(gruppe));
        }
    }
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

struct Wertfolge {
    Feldart art;
    std::string_view folge;
};

constexpr auto wirdGemeldet = "wird unverändert angezeigt; der Export meldet ihn und hat dort keinen richtigen Wert"_t;
constexpr std::array betreuungsfolgen{
    Wertfolge{Feldart::option, wirdGemeldet},
    Wertfolge{Feldart::nation, "wird unverändert angezeigt; der Export läßt die Spalte leer"_t},
    Wertfolge{Feldart::hdOhne, "gilt als Falsch"_t},
    Wertfolge{Feldart::ivKonsum, "gilt als Falsch"_t},
};
constexpr std::array diagnosefolgen{
    Wertfolge{Feldart::option, "der Export meldet ihn oder gibt einen anderen Wert aus"_t},
    Wertfolge{Feldart::icd0000, "gilt im Export nicht als Hauptdiagnose"_t},
    Wertfolge{Feldart::leer, "wird nicht exportiert; der Problembereich gilt als belegt"_t},
};

std::string_view finde(std::span<const Wertfolge> folgen, Feldart art)
{
    const auto ort = std::ranges::find(folgen, art, &Wertfolge::art);
    return ort == folgen.end() ? std::string_view() : ort->folge;
}

/// What becomes of a value that no list has; empty: it goes its way unchanged.
std::string_view folgeFürWert(Tabelle tabelle, int feld)
{
    switch (tabelle) {
    case Tabelle::Betr:
        return finde(betreuungsfolgen, feldOderNichts(betreuungsfelder(), feld).art);
    case Tabelle::Diag:
        return finde(diagnosefolgen, feldOderNichts(diagnosefelder(), feld).art);
    default:
        return feld == feld::kern::leer ? "wird nicht gelesen, ein OK leert das Feld"_t : wirdGemeldet;
    }
}

/// The start completes years of less than three digits, whatever stands before them, in lines that go on behind them.
bool wirdErgänzt(const Satzzeile& satz, int feld)
{
    const auto datum = satz.feld(feld);
    return satz.felder.size() > static_cast<std::size_t>(feld) &&
           datum.size() - std::min(datum.size(), datum.rfind('.') + 1) < 3;
}

} // namespace

void prüfeWerte(const Satzzeile& satz, Befundliste& befunde)
{
    for (int feld = 1; feld <= static_cast<int>(satz.felder.size()); ++feld) {
        if (!istWert(satz.tabelle, feld, satz.feld(feld))) {
            befunde.melde(Befundart::WertUnbekannt, satz.ort(feld), alsZitat(satz.feld(feld)),
                          folgeFürWert(satz.tabelle, feld));
        }
    }
}

void prüfeBitfeld(const Satzzeile& satz, Befundliste& befunde)
{
    const auto text = getrimmt(satz.feld(feld::diag::bitfeld));
    if (text.empty()) {
        return;
    }
    const auto bits = leseGanzzahl64(text);
    if (!bits) {
        befunde.melde(Befundart::BitfeldKeineZahl, satz.ort(feld::diag::bitfeld), alsZitat(text));
        return;
    }
    if (hatFremdeBits(*bits)) {
        befunde.melde(Befundart::BitfeldFremd, satz.ort(feld::diag::bitfeld), alsZitat(text));
    }
    if (*bits < 0) {
        befunde.melde(Befundart::BitfeldNegativ, satz.ort(feld::diag::bitfeld), alsZitat(text));
    }
    prüfeFehlendeBits(satz, *bits, befunde);
}

std::optional<Datum> prüfeDatum(const Satzzeile& satz, int feld, std::string_view ausnahme, Befundliste& befunde)
{
    const auto text = satz.feld(feld);
    if (static_cast<std::size_t>(feld) > satz.felder.size() || (!ausnahme.empty() && text == ausnahme)) {
        return std::nullopt;
    }
    const auto datum = leseDatum(text);
    if (!datum) {
        befunde.melde(Befundart::DatumUngültig, satz.ort(feld), alsZitat(text),
                      folgeFürDatum(satz.tabelle, wirdErgänzt(satz, feld)));
    } else if (wirdErgänzt(satz, feld)) {
        befunde.melde(Befundart::DatumZweistellig, satz.ort(feld), alsZitat(text));
    }
    return datum;
}

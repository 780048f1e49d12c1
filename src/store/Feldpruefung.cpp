#include "store/Feldpruefung.h"

#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "satz/Diagnosesatz.h"
#include "satz/Satzaufbau.h"
#include "satz/Wertpruefung.h"

#include <algorithm>

namespace {

constexpr int bitfeld = diagnosefeld(diagnosegruppen, felderJeGruppe) + anzahlWeitereDiagnosen + 1;

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
        if (!istLeerwert(gruppe, platz, satz.feld(diagnosefeld(gruppe, platz)))) {
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
            befunde.melde(Befundart::BitFehlt, satz.ort(bitfeld), gruppenname(gruppe));
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
            befunde.melde(Befundart::WertUnbekannt, satz.ort(feld), alsZitat(satz.feld(feld)));
        }
    }
}

void prüfeBitfeld(const Satzzeile& satz, Befundliste& befunde)
{
    const auto text = getrimmt(satz.feld(bitfeld));
    if (text.empty()) {
        return;
    }
    const auto bits = leseGanzzahl64(text);
    if (!bits) {
        befunde.melde(Befundart::BitfeldKeineZahl, satz.ort(bitfeld), alsZitat(text));
        return;
    }
    if (hatFremdeBits(*bits)) {
        befunde.melde(Befundart::BitfeldFremd, satz.ort(bitfeld), alsZitat(text));
    }
    if (*bits < 0) {
        befunde.melde(Befundart::BitfeldNegativ, satz.ort(bitfeld), alsZitat(text));
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

#include "spreadsheet/Rohtabellen.h"

#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "satz/moHelferlein.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr int namenszeile = 3;
constexpr std::size_t gewünschteBlätter = 3;

/// Header rows and table on a blank sheet; `schreibeZeile(zeile, satz, plan)` puts a record into its row.
template <class F>
void schreibe(Blatt& blatt, std::string_view tabelle, const Spaltenköpfe& köpfe, std::vector<int> ohneSpalte,
              F schreibeZeile)
{
    if (Zeilen(tabelle).nächste().value_or(std::string_view{}).empty()) {
        return;
    }
    const auto& plan = blatt.merke({.ohneZelle = std::move(ohneSpalte)});
    for (int feld = 1; const auto& kopf : köpfe) {
        if (!std::ranges::binary_search(plan.ohneZelle, feld)) {
            blatt.setze(1, plan.zelleVon(feld), kopf.thema);
            blatt.setze(2, plan.zelleVon(feld), kopf.frage);
            blatt.setze(namenszeile, plan.zelleVon(feld), kopf.name);
        }
        ++feld;
    }
    Zeilen zeilen(tabelle);
    while (const auto satz = zeilen.nächste()) {
        schreibeZeile(namenszeile + static_cast<int>(zeilen.nummer()), *satz, plan);
    }
    blatt.passeSpaltenbreitenAn();
    blatt.setzeFett(namenszeile);
}

void schreibeSätze(Blatt& blatt, std::string_view tabelle, const Spaltenköpfe& köpfe, std::vector<int> ohneSpalte)
{
    schreibe(blatt, tabelle, köpfe, std::move(ohneSpalte), [&](int zeile, std::string_view satz, const Feldplan& plan) {
        blatt.verweiseFelder(zeile, 1, satz, plan);
    });
}

/// The fields that no group fills, and the bit field behind the last name.
std::vector<int> ungenutzte(const Spaltenköpfe& köpfe)
{
    std::vector<int> felder;
    for (int feld = 1; const auto& kopf : köpfe) {
        if (kopf.name.empty() || kopf.name == "VOID"_t) {
            felder.push_back(feld);
        }
        ++feld;
    }
    return felder;
}

/// A further diagnosis stays text, so that 32.10 keeps its last digit; `buchstabe` is the letter of its chapter, which
/// the records leave out.
void schreibeWeitereDiagnose(Blatt& blatt, int zeile, int spalte, std::string_view text, std::string_view buchstabe)
{
    const auto wert = leseZelle(text, Zelltyp::Text);
    if (buchstabe.empty() || wert.art == Zellart::Leer) {
        blatt.verweise(zeile, spalte, text, Zelltyp::Text);
    } else {
        blatt.setze(zeile, spalte, verbinde(buchstabe, alsText(wert)), Zelltyp::Text);
    }
}

void schreibeDiagnosesatz(Blatt& blatt, int zeile, std::string_view satz, const Feldplan& plan, bool mitBuchstaben)
{
    using namespace feld::diag;
    blatt.verweiseFelder(zeile, 1, feldbereich(satz, kernID, weitere(0)), plan);
    const auto diagnosen = feldbereich(satz, weitere(1), weitere(anzahlWeitereDiagnosen));
    for (int nummer = 1; nummer <= anzahlWeitereDiagnosen; ++nummer) {
        schreibeWeitereDiagnose(blatt, zeile, plan.zelleVon(weitere(nummer)), feldbereich(diagnosen, nummer, nummer),
                                mitBuchstaben ? diagnoseartVon(nummer).buchstabe : std::string_view{});
    }
    blatt.verweiseFelder(zeile, plan.zelleVon(anzahl + 1), feldbereich(satz, anzahl + 1, INT_MAX));
}

} // namespace

Rohblätter legeBlätterAn(Arbeitsmappe& mappe)
{
    Blatt& diag = mappe.fügeBlattEinVor(1, "DiagDat"_t);
    Blatt& betr = mappe.fügeBlattEinVor(1, "BetrDat"_t);
    Blatt& kern = mappe.fügeBlattEinVor(1, "KernDat"_t);
    while (mappe.blattanzahl() > gewünschteBlätter) {
        mappe.löscheBlatt(gewünschteBlätter + 1);
    }
    return {kern, betr, diag};
}

std::string_view liesTabelle(Arbeitsmappe& mappe, Dateien& dateien, const std::filesystem::path& pfad)
{
    const std::shared_ptr<const Dateiinhalt> inhalt = dateien.lies(pfad);
    mappe.halte(inhalt);
    return inhalt->text();
}

void schreibeKernDat(Blatt& blatt, std::string_view tabelle, const Spaltenköpfe& köpfe)
{
    schreibeSätze(blatt, tabelle, köpfe, {feld::kern::leer, feld::kern::memo});
}

void schreibeBetrDat(Blatt& blatt, std::string_view tabelle, const Spaltenköpfe& köpfe)
{
    schreibeSätze(blatt, tabelle, köpfe, {feld::betr::memo});
}

void schreibeDiagDat(Blatt& blatt, std::string_view tabelle, const Spaltenköpfe& köpfe)
{
    bool mitBuchstaben = true; // down to the first record without an id, as they have always been added
    schreibe(blatt, tabelle, köpfe, ungenutzte(köpfe), [&](int zeile, std::string_view satz, const Feldplan& plan) {
        const auto id = feldbereich(satz, feld::diag::kernID, feld::diag::kernID);
        mitBuchstaben = mitBuchstaben && leseZelle(id, Zelltyp::Allgemein).art != Zellart::Leer;
        schreibeDiagnosesatz(blatt, zeile, satz, plan, mitBuchstaben);
    });
}

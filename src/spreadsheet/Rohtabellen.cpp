#include "spreadsheet/Rohtabellen.h"

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "satz/moHelferlein.h"
#include "zustand/Zustand.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr int kopfspalten = 255;
constexpr int namenszeile = 3;
constexpr int ersteDatenzeile = 4;
constexpr std::size_t gewünschteBlätter = 3;

constexpr int kernSpalteMemo = 11;
constexpr int kernSpalteLeer = 1;
constexpr int betrSpalteMemo = 192;

// The further diagnoses stay text, so that 32.10 keeps its last digit.
constexpr std::size_t diagTypen = 257;
constexpr std::size_t ersteZusatzspalte = 235;
constexpr std::size_t letzteZusatzspalte = 246;

/// The chapter letter of the ICD-10 that the records of some columns leave out.
struct Buchstabe {
    int von;
    int bis;
    std::string_view zeichen;
};
constexpr Buchstabe buchstaben[]{{235, 238, "F"_t}, {239, 242, "G"_t}};

bool istBlank(std::string_view tabelle)
{
    return Zeilen(tabelle).nächste().value_or(std::string_view{}).empty();
}

void schreibeKopf(Blatt& blatt, const Kopfzeilen& kopf)
{
    for (int zeile = 1; zeile <= namenszeile; ++zeile) {
        const std::string& spalten = kopf[static_cast<std::size_t>(zeile)];
        for (int spalte = 1; spalte <= kopfspalten; ++spalte) {
            blatt.setze(zeile, spalte, getFeld(spalten, spalte));
        }
    }
}

std::vector<Zelltyp> diagSpaltentypen()
{
    std::vector<Zelltyp> typen(diagTypen, Zelltyp::Allgemein);
    std::fill(typen.begin() + (ersteZusatzspalte - 1), typen.begin() + letzteZusatzspalte, Zelltyp::Text);
    return typen;
}

std::string_view buchstabeFür(int spalte)
{
    for (const Buchstabe& buchstabe : buchstaben) {
        if (spalte >= buchstabe.von && spalte <= buchstabe.bis) {
            return buchstabe.zeichen;
        }
    }
    return {};
}

void ergänzeBuchstabenIn(Blatt& blatt, int zeile)
{
    std::vector<std::pair<int, std::string>> neu;
    blatt.fürJedeZelle(zeile, [&](int spalte, const Zellwert& wert) {
        if (const auto zeichen = buchstabeFür(spalte); !zeichen.empty()) {
            neu.emplace_back(spalte, verbinde(zeichen, alsText(wert)));
        }
    });
    for (const auto& [spalte, text] : neu) {
        blatt.setze(zeile, spalte, text, Zelltyp::Text);
    }
}

/// From the first record down to the first row without an id.
void ergänzeBuchstaben(Blatt& blatt)
{
    for (int zeile = ersteDatenzeile; blatt.zelle(zeile, 1).art != Zellart::Leer; ++zeile) {
        ergänzeBuchstabenIn(blatt, zeile);
    }
}

void löscheUngenutzte(Blatt& blatt, int spalten)
{
    for (int spalte = spalten; spalte >= 1; --spalte) {
        if (blatt.zelle(namenszeile, spalte).text == "VOID"_t) {
            blatt.löscheSpalte(spalte);
        }
    }
}

void schmücke(Blatt& blatt)
{
    blatt.passeSpaltenbreitenAn();
    blatt.setzeFett(namenszeile);
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

std::string_view liesTabelle(Arbeitsmappe& mappe, const std::filesystem::path& pfad)
{
    const std::shared_ptr<const Dateiinhalt> inhalt = zustand().umgebung.dateien().lies(pfad);
    mappe.halte(inhalt);
    return inhalt->text();
}

void schreibeKernDat(Blatt& blatt, std::string_view tabelle, const Kopfzeilen& kopf)
{
    if (istBlank(tabelle)) {
        return;
    }
    schreibeKopf(blatt, kopf);
    blatt.importiereText(ersteDatenzeile, 1, tabelle, {trenner, {}});
    blatt.löscheSpalte(kernSpalteMemo); // the later one first, while the number still means the imported column
    blatt.löscheSpalte(kernSpalteLeer);
    schmücke(blatt);
}

void schreibeBetrDat(Blatt& blatt, std::string_view tabelle, const Kopfzeilen& kopf)
{
    if (istBlank(tabelle)) {
        return;
    }
    schreibeKopf(blatt, kopf);
    blatt.importiereText(ersteDatenzeile, 1, tabelle, {trenner, {}});
    blatt.löscheSpalte(betrSpalteMemo);
    schmücke(blatt);
}

void schreibeDiagDat(Blatt& blatt, std::string_view tabelle, const Kopfzeilen& kopf)
{
    if (istBlank(tabelle)) {
        return;
    }
    schreibeKopf(blatt, kopf);
    blatt.importiereText(ersteDatenzeile, 1, tabelle, {trenner, diagSpaltentypen()});
    ergänzeBuchstaben(blatt);
    schmücke(blatt);
    const int spalten = anzahlFelder(kopf[namenszeile]);
    blatt.löscheSpalte(spalten);
    löscheUngenutzte(blatt, spalten);
}

#include "spreadsheet/Auswertung.h"

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Betreuungsfelder.h"
#include "satz/Diagnosefelder.h"
#include "satz/Klientenfelder.h"
#include "satz/moHelferlein.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <utility>

namespace {

constexpr int höchsteZeile = INT16_MAX;

/// The cells of a record, from its first field on: the fields of the columns and no others.
Feldplan planZu(std::span<const auswertungsspalte::Spalte> spalten)
{
    Feldplan plan;
    for (int feld = 1; feld < spalten.back().feld; ++feld) {
        if (std::ranges::find(spalten, feld, &auswertungsspalte::Spalte::feld) == spalten.end()) {
            plan.ohneZelle.push_back(feld);
        }
    }
    return plan;
}

[[noreturn]] void meldeÜberlauf(const std::filesystem::path& datei, int zeile)
{
    throw Laufzeitfehler(verbinde("Überlauf: mehr Zeilen, als das Blatt Auswertung zählen kann. Datei "_t,
                                  pfadtext(datei), ", Zeile "_t, alsText(zeile)));
}

} // namespace

HDBlock sucheHDBlock(std::string_view satz)
{
    prüfeZeilenlänge(satz);
    std::string_view blöcke = feldbereich(satz, feld::diag::ersteAntwort, INT_MAX);
    for (int gruppe = 1; gruppe <= höchsteGruppe && !blöcke.empty(); ++gruppe) {
        const auto antworten = feldbereich(blöcke, Konsumart, AlterErstkonsum);
        if (feldbereich(blöcke, HDMarke, HDMarke) == "1"_t) {
            return {gruppe, antworten};
        }
        blöcke = feldbereich(blöcke, HDMarke + 1, INT_MAX);
    }
    return {};
}

Auswertung::Auswertung(Arbeitsmappe& mappe, const Tabellen& tabellen, std::filesystem::path diagDat)
    : m_blatt(mappe.fügeBlattEinVor(1, "Auswertung"_t)), m_diag(tabellen.diag), m_diagDat(std::move(diagDat)),
      m_klienten(tabellen.kern, [](std::string_view zeile) { return std::string(getFeld(zeile, feld::kern::kernID)); }),
      m_betreuungen(tabellen.betr, [](std::string_view zeile) {
          return verbinde(getFeld(zeile, feld::betr::kernID), trenner, getFeld(zeile, feld::betr::betrID));
      })
{
    schreibeKöpfe(auswertungsspalte::fall, auswertungsspalte::kennungen);
}

void Auswertung::schreibeKöpfe(int spalte, std::span<const auswertungsspalte::Spalte> spalten)
{
    for (const auto& [kopf, feld, kommentar] : spalten) {
        m_blatt.setze(1, spalte, kopf);
        if (!kommentar.empty()) {
            m_blatt.kommentiere(1, spalte, kommentar);
        }
        ++spalte;
    }
}

void Auswertung::schreibeHauptdiagnosen()
{
    using namespace auswertungsspalte;
    schreibeKöpfe(hauptdiagnose, hdSpalten);
    const auto& kennungsplan = m_blatt.merke(planZu(kennungen));
    const auto& hdPlan = m_blatt.merke(planZu(hdSpalten));
    Zeilen zeilen(m_diag);
    int zeile = 1;
    while (const auto satz = zeilen.nächste()) {
        if (zeile == höchsteZeile) {
            meldeÜberlauf(m_diagDat, zeile);
        }
        ++zeile;
        m_blatt.verweiseFelder(zeile, fall, feldbereich(*satz, feld::diag::kernID, kennungen.back().feld),
                               kennungsplan);
        if (const auto block = sucheHDBlock(*satz); block.gruppe != 0) {
            m_blatt.verweiseFelder(zeile, hauptdiagnose, block.antworten, hdPlan);
            m_blatt.verweise(zeile, gruppe, gruppenname(block.gruppe));
        }
    }
}

void Auswertung::schreibeKlienten()
{
    using namespace auswertungsspalte;
    schreibeKöpfe(klient, klientenspalten);
    const auto& plan = m_blatt.merke(planZu(klientenspalten));
    for (int zeile = 2; istBelegt(zeile); ++zeile) {
        const auto satz = m_klienten.finde(schlüssel(zeile, fall));
        m_blatt.verweiseFelder(zeile, klient, feldbereich(satz, feld::kern::leer, klientenspalten.back().feld), plan);
    }
}

void Auswertung::schreibeBetreuungskopf(const Spaltenköpfe& köpfe)
{
    // Without a record the header stands two columns further left and keeps the memo: splitting and deleting worked on
    // ranges, which turned round and took it in. Users know it so.
    const bool ohneSatz = !istBelegt(2);
    const int letztes = ohneSatz ? feld::betr::memo : feld::betr::memo - 1;
    int spalte = auswertungsspalte::betreuung;
    for (int feld = ohneSatz ? feld::betr::wieder : feld::betr::beginn; feld <= letztes; ++feld) {
        m_blatt.setze(1, spalte++, köpfe.at(static_cast<std::size_t>(feld - 1)).name);
    }
    m_blatt.setzeFett(1);
}

void Auswertung::schreibeBetreuungen(const Spaltenköpfe& köpfe, const std::function<void(int)>& beiDatensatz)
{
    schreibeBetreuungskopf(köpfe);
    const auto& plan =
        m_blatt.merke({.typ = Zelltyp::AllgemeinMinusHinten, .ohneZelle = {feld::betr::memo - feld::betr::betrID}});
    for (int zeile = 2; istBelegt(zeile); ++zeile) {
        beiDatensatz(zeile - 1);
        const std::string id = verbinde(schlüssel(zeile, auswertungsspalte::fall), trenner,
                                        schlüssel(zeile, auswertungsspalte::betreuungsnummer));
        m_blatt.verweiseFelder(zeile, auswertungsspalte::betreuung,
                               feldbereich(m_betreuungen.finde(id), feld::betr::beginn, INT_MAX), plan);
    }
}

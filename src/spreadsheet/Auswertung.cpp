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

#include <array>
#include <climits>
#include <cstdint>
#include <utility>
#include <vector>

namespace {

constexpr int spalteFall = 1;
constexpr int spalteBetreuungsnummer = 2;
constexpr int spalteKlient = 3;
constexpr int spalteErsteHD = 10;
constexpr int spalteBetreuung = 18;
constexpr int höchsteZeile = INT16_MAX;

/// From column 3 on, in the order of the client record.
constexpr std::array klientenköpfe{"v_Nachname"_t, "v_Vorname"_t,    "v_Strasse"_t,     "v_PLZ"_t,
                                   "v_Ort"_t,      "v_Geschlecht"_t, "v_Geburtsdatum"_t};
static_assert(klientenköpfe.size() == feld::kern::geburtsdatum - feld::kern::nachname + 1);

struct HDSpalte {
    std::string_view kopf;
    std::string_view kommentar; ///< empty: none
};

/// From column 10 on.
constexpr HDSpalte hdSpalten[]{
    {"ICDxxx1"_t, "Überwiegende Konsumart letzte 30 Tage vor BetrBeg"_t},
    {"ICDxxx2"_t, "# KonsumTage 30 Tage am BetrEnd"_t},
    {"ICDxxx3"_t, "ICD10 4. und 5. Stelle"_t},
    {"ICDxxx4"_t, "Alter bei Störungsbeginn"_t},
    {"ICDxxx5"_t, "Riskanter Konsum"_t},
    {"ICDxxx6"_t, "Alter Erstkonsum"_t},
    {"v_AlterErstkonsum"_t, {}},
    {"v_Hauptdiagnose"_t, {}},
};

std::string klientenschlüssel(std::string_view zeile)
{
    return std::string(getFeld(zeile, feld::kern::kernID));
}

std::string betreuungsschlüssel(std::string_view zeile)
{
    return verbinde(getFeld(zeile, feld::betr::kernID), trenner, getFeld(zeile, feld::betr::betrID));
}

/// A care record from its begin on.
Feldplan planFür(Zelltyp typ, bool ohneMemo)
{
    return {.typ = typ,
            .ohneZelle = ohneMemo ? std::vector{feld::betr::memo - feld::betr::betrID} : std::vector<int>{}};
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
      m_klienten(tabellen.kern, klientenschlüssel), m_betreuungen(tabellen.betr, betreuungsschlüssel)
{
    m_blatt.setze(1, spalteFall, "fallnr"_t);
    m_blatt.setze(1, spalteBetreuungsnummer, "betrnr"_t);
}

void Auswertung::schreibeHauptdiagnosen()
{
    schreibeHDKopf();
    Zeilen zeilen(m_diag);
    int zeile = 1;
    while (const auto satz = zeilen.nächste()) {
        if (zeile == höchsteZeile) {
            meldeÜberlauf(m_diagDat, zeile);
        }
        ++zeile;
        m_blatt.verweiseFelder(zeile, spalteFall, feldbereich(*satz, feld::diag::kernID, feld::diag::betrID));
        schreibeHD(zeile, sucheHDBlock(*satz));
    }
}

void Auswertung::schreibeHDKopf()
{
    int spalte = spalteErsteHD;
    for (const HDSpalte& kopf : hdSpalten) {
        m_blatt.setze(1, spalte, kopf.kopf);
        if (!kopf.kommentar.empty()) {
            m_blatt.kommentiere(1, spalte, kopf.kommentar);
        }
        ++spalte;
    }
}

void Auswertung::schreibeHD(int zeile, const HDBlock& block)
{
    if (block.gruppe == 0) {
        return;
    }
    m_blatt.verweiseFelder(zeile, spalteErsteHD, block.antworten);
    m_blatt.verweise(zeile, spalteErsteHD + AlterErstkonsum, gruppenname(block.gruppe));
}

void Auswertung::schreibeKlienten()
{
    for (int spalte = spalteKlient; const auto kopf : klientenköpfe) {
        m_blatt.setze(1, spalte++, kopf);
    }
    for (int zeile = 2; istBelegt(zeile); ++zeile) {
        const auto satz = m_klienten.finde(schlüssel(zeile, spalteFall));
        m_blatt.verweiseFelder(zeile, spalteKlient, feldbereich(satz, feld::kern::nachname, feld::kern::geburtsdatum));
    }
}

void Auswertung::schreibeBetreuungen(std::string_view kopf, const std::function<void(int)>& beiDatensatz)
{
    const bool ohneSatz = !istBelegt(2);
    // Without a record the header stands two columns further left and keeps the memo: splitting and deleting worked on
    // ranges, which turned round and took it in. Users know it so.
    const auto& kopfplan = m_blatt.merke(planFür(Zelltyp::Allgemein, !ohneSatz));
    m_blatt.setzeFelder(1, spalteBetreuung,
                        feldbereich(kopf, ohneSatz ? feld::betr::wieder : feld::betr::beginn, INT_MAX), kopfplan);
    const auto& plan = m_blatt.merke(planFür(Zelltyp::AllgemeinMinusHinten, true));
    for (int zeile = 2; istBelegt(zeile); ++zeile) {
        beiDatensatz(zeile - 1);
        const std::string id =
            verbinde(schlüssel(zeile, spalteFall), trenner, schlüssel(zeile, spalteBetreuungsnummer));
        m_blatt.verweiseFelder(zeile, spalteBetreuung,
                               feldbereich(m_betreuungen.finde(id), feld::betr::beginn, INT_MAX), plan);
    }
    m_blatt.setzeFett(1);
}

#include "spreadsheet/Auswertung.h"

#include "platform/dateien/Dateien.h"
#include "platform/dateien/Zeilen.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "platform/umgebung/Laufzeitfehler.h"
#include "satz/Diagnosefelder.h"
#include "satz/Satzaufbau.h"
#include "satz/moData.h"
#include "satz/moHelferlein.h"
#include "zustand/Zustand.h"

#include <cstdint>

namespace {

constexpr int spalteFall = 1;
constexpr int spalteBetreuungsnummer = 2;
constexpr int spalteErsteHD = 10;
constexpr int spalteHDName = 17;
constexpr int spalteBetreuung = 18;
constexpr int spalteMemo = 207;
/// Care field c stands in column c + 15.
constexpr int versatzBetreuung = 15;
constexpr int erstesBetreuungsfeld = 3;
constexpr int höchsteZeile = INT16_MAX;

struct Klientenspalte {
    int spalte;
    std::string_view kopf;
    int feld;
};

constexpr Klientenspalte klientenspalten[]{
    {3, "v_Nachname"_t, 4}, {4, "v_Vorname"_t, 5},    {5, "v_Strasse"_t, 6},       {6, "v_PLZ"_t, 7},
    {7, "v_Ort"_t, 8},      {8, "v_Geschlecht"_t, 9}, {9, "v_Geburtsdatum"_t, 10},
};

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
    return std::string(getFeld(zeile, 2));
}

std::string betreuungsschlüssel(std::string_view zeile)
{
    return verbinde(getFeld(zeile, 1), trenner, getFeld(zeile, 2));
}

[[noreturn]] void meldeÜberlauf(int zeile)
{
    throw Laufzeitfehler(verbinde("Überlauf: mehr Zeilen, als das Blatt Auswertung zählen kann. Datei "_t,
                                  pfadtext(zustand().pfade.diagDat), ", Zeile "_t, alsText(zeile)));
}

} // namespace

HDBlock sucheHDBlock(std::string_view zeile)
{
    getFeld(zeile, 1); // refuses a line that is too long to be counted
    HDBlock block;
    for (int feld = 1; feld <= feld::diag::antwort(höchsteGruppe, felderJeGruppe); ++feld) {
        const std::size_t ende = zeile.find(trenner);
        const std::string_view text = zeile.substr(0, ende);
        const int platz = (feld + 5) % felderJeGruppe;
        if (feld > 2 && platz == felderJeGruppe - 1 && text == "1"_t) {
            block.gruppe = (feld - 2) / felderJeGruppe;
            return block;
        }
        if (feld > 2 && platz < felderJeGruppe - 1) {
            block.felder[platz] = text;
        }
        if (ende == std::string_view::npos) {
            break;
        }
        zeile.remove_prefix(ende + 1);
    }
    return {};
}

Auswertung::Auswertung(Arbeitsmappe& mappe, const Tabellen& tabellen)
    : m_blatt(mappe.fügeBlattEinVor(1, "Auswertung"_t)), m_diag(tabellen.diag),
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
            meldeÜberlauf(zeile);
        }
        ++zeile;
        m_blatt.verweise(zeile, spalteFall, getFeld(*satz, 1));
        m_blatt.verweise(zeile, spalteBetreuungsnummer, getFeld(*satz, 2));
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
    int spalte = spalteErsteHD;
    for (const std::string_view feld : block.felder) {
        m_blatt.verweise(zeile, spalte++, feld);
    }
    m_blatt.setze(zeile, spalteHDName, aryProblem[static_cast<std::size_t>(block.gruppe)]);
}

void Auswertung::schreibeKlienten()
{
    for (const Klientenspalte& spalte : klientenspalten) {
        m_blatt.setze(1, spalte.spalte, spalte.kopf);
    }
    for (int zeile = 2; istBelegt(zeile); ++zeile) {
        const std::string_view satz = m_klienten.finde(schlüssel(zeile, spalteFall));
        for (const Klientenspalte& spalte : klientenspalten) {
            m_blatt.verweise(zeile, spalte.spalte, getFeld(satz, spalte.feld));
        }
    }
}

void Auswertung::schreibeBetreuungen(std::string_view kopf, const std::function<void(int)>& beiDatensatz)
{
    const int felder = anzahlFelder(kopf);
    for (int feld = erstesBetreuungsfeld; feld <= felder; ++feld) {
        m_blatt.setze(1, feld + versatzBetreuung, getFeld(kopf, feld));
    }
    int zeile = 2;
    for (; istBelegt(zeile); ++zeile) {
        beiDatensatz(zeile - 1);
        const std::string id =
            verbinde(schlüssel(zeile, spalteFall), trenner, schlüssel(zeile, spalteBetreuungsnummer));
        m_blatt.verweise(zeile, spalteBetreuung, m_betreuungen.finde(id));
    }
    trenneBetreuungen(zeile - 1);
}

/// The care lines become columns, the two ids in front of them and the memo at their end go. Without any record
/// the ranges turn round and take in the header row, as a spreadsheet's ranges do.
void Auswertung::trenneBetreuungen(int letzteZeile)
{
    m_blatt.textInSpalten(2, letzteZeile, spalteBetreuung, trenner);
    m_blatt.löscheBereich(2, spalteBetreuung, letzteZeile, spalteBetreuung + 1);
    m_blatt.löscheSpalte(spalteMemo);
    m_blatt.setzeFett(1);
}

#include "spreadsheet/frmZuExcel.h"

#include "platform/dateien/Zeilen.h"
#include "platform/mappe/Arbeitsmappe.h"
#include "platform/text/Text.h"
#include "platform/text/Zahl.h"
#include "spreadsheet/Auswertung.h"
#include "spreadsheet/Rohtabellen.h"
#include "spreadsheet/moErstelleHeader.h"
#include "zustand/Zustand.h"

#include <algorithm>
#include <array>

namespace {

constexpr int schritte = 7;
/// The share of the time that is over when a step begins, and at the end: measured on 5,000 clients.
constexpr std::array<double, schritte + 1> zeitanteil{0, 0.002, 0.01, 0.016, 0.016, 0.02, 0.025, 1};
/// The last step but one joins the episodes; from here on the workbook is written and handed over.
constexpr double zeitanteilÜbergabe = 0.03;

} // namespace

frmZuExcel::frmZuExcel() : Bildschirm("frmZuExcel"_t)
{

    setzeTitel(zustand().titel);
    istKindfenster = true;
    breite = 7200;
    höhe = 3000;
    cmdFertig.setzeText("Fertig\r\n(bitte klicken, um zum Hauptmenü zurückzukehren)"_t);
    cmdFertig.zeige(false);
    cmdFertig.beiKlick = [this] { zustand().folge.schließe(*this); };
    beiEscape = &cmdFertig;
    ProgressBar1.setzeBereich(0, schritte);

    kopfband.titel = &lblHeader;
    aufbau =
        anordnung::spalte({anordnung::element(lblText), anordnung::element(lblStatus), anordnung::element(ProgressBar1),
                           anordnung::füllend(anordnung::platzhaltend(anordnung::element(cmdFertig)))});
}

void frmZuExcel::beiÖffnung()
{
    platziere();
    lblText.setzeText("bei der Arbeit... (bitte warten)"_t);
    zustand().umgebung.zeichne();
    schreibeTabellen();
    if (m_abbruch) {
        zustand().folge.schließe(*this);
    } else {
        cmdFertig.zeige(true);
        setzeFokus(&cmdFertig);
    }
}

/// The keys hold the place of the frame; the window itself stands in its middle. Where there are real windows their
/// sizes count, which the font decides.
void frmZuExcel::platziere()
{
    Rahmen& rahmen = zustand().rahmen;
    if (!rahmen.istMaximiert()) {
        rahmen.setzeLage(oben, links);
    }
    istMittig = true; // not before now: the place from the keys is the frame's
    oben = rahmen.oben() + (rahmen.höhe() - höhe) / 2;
    links = rahmen.links() + (rahmen.breite() - breite) / 2;
    lageGeändert.melde();
}

void frmZuExcel::schreibeTabellen()
{
    const auto kern = erstelleKernHeader();
    const auto betr = erstelleBetrHeader("excel"_t);
    const auto diag = erstelleDiagHeader();
    Umgebung& umgebung = zustand().umgebung;
    if (!umgebung.findeTabellenprogramm()) {
        brichAb();
        return;
    }
    Arbeitsmappe mappe;
    Rohblätter blätter = legeBlätterAn(mappe);
    Tabellen tabellen;
    zeigeFortschritt("schreibe KernDat"_t, true);
    tabellen.kern = liesTabelle(mappe, umgebung.dateien(), zustand().pfade.kernDat);
    schreibeKernDat(blätter.kern, tabellen.kern, kern);
    zeigeFortschritt("schreibe BetrDat"_t);
    tabellen.betr = liesTabelle(mappe, umgebung.dateien(), zustand().pfade.betrDat);
    schreibeBetrDat(blätter.betr, tabellen.betr, betr);
    zeigeFortschritt("schreibe DiagDat"_t);
    tabellen.diag = liesTabelle(mappe, umgebung.dateien(), zustand().pfade.diagDat);
    schreibeDiagDat(blätter.diag, tabellen.diag, diag);
    zeigeFortschritt({});

    Auswertung auswertung(mappe, tabellen, zustand().pfade.diagDat);
    zeigeFortschritt("suche Hauptdiagnose-Daten"_t);
    auswertung.schreibeHauptdiagnosen();
    zeigeFortschritt("suche Kern-Daten"_t);
    auswertung.schreibeKlienten();
    zeigeFortschritt("suche Betreuungsdaten"_t);
    const auto anzahl = static_cast<int>(zähleZeilen(tabellen.diag));
    auswertung.schreibeBetreuungen(betr, [&](int nummer) { zeigeDatensatz(nummer, anzahl); });

    if (übergib(mappe)) {
        zeigeFortschritt("Fertig"_t);
    } else {
        brichAb();
    }
}

bool frmZuExcel::übergib(Arbeitsmappe& mappe)
{
    return zustand().umgebung.übergibMappe(mappe, [this](double anteil) {
        ProgressBar1.setzeAnteil(zeitanteilÜbergabe + (1 - zeitanteilÜbergabe) * anteil);
        zustand().umgebung.zeichneGelegentlich();
    });
}

void frmZuExcel::brichAb()
{
    zeigeMeldung(verbinde(zustand().titel, " konnte Excel nicht finden.\r\nNichts wurde verändert"_t), Symbol::Stop);
    m_abbruch = true;
}

void frmZuExcel::zeigeFortschritt(std::string_view text, bool zurücksetzen)
{
    m_fortschritt = zurücksetzen ? ProgressBar1.kleinstes() : m_fortschritt + 1;
    if (!text.empty()) {
        lblStatus.setzeText(text);
    }
    ProgressBar1.setzeWert(m_fortschritt, zeitanteil[static_cast<std::size_t>(m_fortschritt)]);
    zustand().umgebung.zeichne();
}

void frmZuExcel::zeigeDatensatz(int nummer, int anzahl)
{
    lblStatus.setzeText(verbinde("schreibe DS #"_t, alsText(nummer)));
    const double beginn = zeitanteil[schritte - 1];
    ProgressBar1.setzeAnteil(beginn + (zeitanteilÜbergabe - beginn) * nummer / std::max(1, anzahl));
    zustand().umgebung.zeichneGelegentlich();
}

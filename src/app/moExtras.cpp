#include "app/moExtras.h"

#include "app/Einstellungen.h"

#include <algorithm>

namespace {

// What the frame's border and menu take beside the screen, in twips.
constexpr double randDesHauptmenüs = 800;
constexpr double randSonst = 500;
constexpr double randOben = 250;

std::string obenVon(const Bildschirm& bildschirm)
{
    return verbinde(bildschirm.name(), ".top"_t);
}

std::string linksVon(const Bildschirm& bildschirm)
{
    return verbinde(bildschirm.name(), ".left"_t);
}

void setzeLage(Bildschirm& bildschirm, double oben, double links)
{
    bildschirm.oben = oben;
    bildschirm.links = links;
    bildschirm.lageGeändert.melde();
}

double randbreite(const Bildschirm& bildschirm)
{
    return klein(bildschirm.name()) == "frmhauptmenü"_t ? randDesHauptmenüs : randSonst;
}

} // namespace

void moExtras::setzeFensterPosition(Bildschirm& bildschirm)
{
    Rahmen& rahmen = m_zustand.rahmen;
    if (rahmen.istMaximiert()) {
        // going back to normal for a moment places the frame, so that it stands right when the user does so
        rahmen.maximiere(false);
        setzeLage(bildschirm, 0, 0);
        rahmen.maximiere(true);
        return;
    }
    rahmen.setzeLage(leseLage(obenVon(bildschirm)), leseLage(linksVon(bildschirm)));
    setzeLage(bildschirm, 0, 0);
    passeRahmenAn(bildschirm.breite + randbreite(bildschirm), bildschirm.höhe + randOben);
}

void moExtras::passeRahmenAn(double breite, double höhe)
{
    if (m_zustand.rahmen.istMaximiert()) {
        return;
    }
    const Größe schirm = m_zustand.umgebung.bildschirmgröße();
    m_zustand.rahmen.setzeGröße(std::min(breite, schirm.breite), std::min(höhe, schirm.höhe));
}

void moExtras::platziereAktiven()
{
    const auto geladene = m_zustand.folge.geladene();
    const auto seite = std::find_if(geladene.rbegin(), geladene.rend(), [this](const Bildschirm* bildschirm) {
        return !bildschirm->istKindfenster && m_zustand.folge.istSichtbar(*bildschirm);
    });
    if (seite != geladene.rend()) {
        setzeFensterPosition(**seite);
    }
}

void moExtras::speichereRahmenlage(const Bildschirm& bildschirm)
{
    schreibeLage(obenVon(bildschirm), m_zustand.rahmen.oben());
    schreibeLage(linksVon(bildschirm), m_zustand.rahmen.links());
}

void moExtras::holeFensterlage(Bildschirm& bildschirm)
{
    setzeLage(bildschirm, leseLage(obenVon(bildschirm)), leseLage(linksVon(bildschirm)));
}

void moExtras::speichereFensterlage(const Bildschirm& bildschirm)
{
    schreibeLage(obenVon(bildschirm), bildschirm.oben);
    schreibeLage(linksVon(bildschirm), bildschirm.links);
}

void moExtras::zeigeDatenÜbernahme(Bildschirm& rufer, Bildschirm& frmDatenÜbernahme)
{
    m_aufrufer = &rufer;
    m_zustand.folge.verberge(rufer);
    m_zustand.folge.zeige(frmDatenÜbernahme);
}

void moExtras::zeigeZeitraum(Bildschirm& rufer, Bildschirm& frmBetreuungZeitraum)
{
    öffneÜber(rufer, frmBetreuungZeitraum);
}

void moExtras::zeigeDiagnoseErstellen(Bildschirm& rufer, Bildschirm& frmBetrDiagnoseErstellen)
{
    öffneÜber(rufer, frmBetrDiagnoseErstellen);
}

void moExtras::zeigeCodeAuswahl(Bildschirm& rufer, Bildschirm& frmBetrDiagnoseCodeAuswahl)
{
    öffneÜber(rufer, frmBetrDiagnoseCodeAuswahl);
}

void moExtras::öffneÜber(Bildschirm& rufer, Bildschirm& dialog)
{
    m_aufrufer = &rufer;
    m_zustand.folge.sperre(rufer);
    m_zustand.folge.zeige(dialog);
}

void moExtras::zeigeMemo(Bildschirm& rufer, bool zeigeMemoB)
{
    m_memoAufrufer = &rufer;
    m_zustand.folge.sperre(rufer);
    auto& memo = m_memo.neu();
    memo.zeigeMemoB = zeigeMemoB;
    m_zustand.folge.zeige(memo);
}

void moExtras::zeigeAufrufer()
{
    if (m_aufrufer != nullptr) {
        m_zustand.folge.gibFrei(*m_aufrufer);
        setzeFensterPosition(*m_aufrufer);
    }
}

void moExtras::aktualisiereAufrufer()
{
    if (m_aufrufer != nullptr) {
        m_aufrufer->aktualisiere();
    }
}

void moExtras::zeigeMemoAufrufer()
{
    if (m_memoAufrufer != nullptr) {
        m_zustand.folge.gibFrei(*m_memoAufrufer);
    }
}

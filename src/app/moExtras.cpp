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

moExtras::moExtras(Zustand& zustand) : m_zustand(zustand)
{
    auto& folge = m_zustand.folge;
    m_abonnements = {folge.wirdAktiv.abonniere([this](Bildschirm& bildschirm) { platziere(bildschirm); }),
                     folge.entladen.abonniere([this](const Bildschirm& bildschirm) { merkeLage(bildschirm); })};
    m_zustand.zeigeMemo = [this](Bildschirm& rufer, bool zeigeMemoB) {
        m_zustand.folge.öffneÜber(rufer, m_memo.neu(zeigeMemoB));
    };
}

void moExtras::platziere(Bildschirm& bildschirm)
{
    if (bildschirm.istKindfenster) {
        setzeLage(bildschirm, leseLage(obenVon(bildschirm)), leseLage(linksVon(bildschirm)));
    } else {
        setzeFensterPosition(bildschirm);
    }
}

void moExtras::merkeLage(const Bildschirm& bildschirm)
{
    const Rahmen& rahmen = m_zustand.rahmen;
    schreibeLage(obenVon(bildschirm), bildschirm.istKindfenster ? bildschirm.oben : rahmen.oben());
    schreibeLage(linksVon(bildschirm), bildschirm.istKindfenster ? bildschirm.links : rahmen.links());
}

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
    const Größe schirm = m_zustand.umgebung.bildschirmgröße();
    rahmen.setzeGröße(std::min(bildschirm.breite + randbreite(bildschirm), schirm.breite),
                      std::min(bildschirm.höhe + randOben, schirm.höhe));
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
